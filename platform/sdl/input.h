// Turns SDL's events into messages: keys, focus, requests to close, parts that need painting.
#pragma once

#include <SDL.h>

// Takes all events that have happened since the last call and posts their messages as input. Does
// nothing while there is no window.
void pollInput();

// Does the same for one event of the game's window, which somebody else has taken from SDL.
void handleGameWindowEvent(const SDL_WindowEvent& event);
