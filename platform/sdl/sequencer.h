// MIDI music beside the effects: one piece at a time, and word to the game when it is over.
#pragma once

// Starts a piece that has become ready, and posts MM_MCINOTIFY for one that is over. The message
// queue calls it whenever the game looks for messages.
void runSequencer();

// Ends the music without a word.
void stopSequencer();
