// From the events of SDL to messages: keys, focus, close requests, uncovered windows.
#pragma once

#include <SDL.h>

// Turns everything that has happened since the last call into input messages.
void pollInput();

// Does the same with one event of the game's window. Nothing happens while there is no window.
void handleGameWindowEvent(const SDL_WindowEvent& event);
