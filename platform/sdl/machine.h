// Starting and stopping the parts of SDL that the services stand on.
#pragma once

// Starts windows, keys and OpenGL at the first call. Returns false, with the last error set, where
// there is no display; it is not tried again.
bool startVideo();

// Whether a player can see the display and press keys on it: false on the drivers of SDL that
// keep windows in memory only. Video must have started.
bool isDisplayVisible();

// Gives everything back in the right order: music, sounds, the drawing surface, the window, SDL.
void shutDown();
