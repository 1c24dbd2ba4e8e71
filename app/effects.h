// Plays the sound effects (their files: data/asset_files.h).
#pragma once

// Starts a WAVE file and returns at once. A new effect cuts off the one that is still playing; a
// file that cannot be played is ignored.
void playEffect(const char* fileName);
