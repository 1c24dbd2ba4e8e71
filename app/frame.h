// One complete frame for the screen that the game is on.
#pragma once

// Draws and presents a frame. Called once a tick, also while paused, and when the window must be
// painted. Every screen but the level's also stops the level; title and best times stop the music,
// and the name entry takes the key that was typed.
void drawFrame();
