// Starting and stopping the parts of SDL that the services stand on.
#pragma once

// Starts windows, keys and OpenGL at the first call. Returns false, with the last error set, where
// there is no display; it is not tried again.
bool startVideo();

// Gives everything back in the right order: music, sounds, the drawing surface, the window, SDL.
void stopMachine();
