// One complete frame for the screen that the game is on.
#pragma once

// Composes and presents a frame: once a tick, also while paused, and when the window must be
// painted. On the screens without a level it also ends the level and the music; on the name entry it takes
// the typed key.
void drawFrame();
