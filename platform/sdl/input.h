// Turns SDL's events into messages: keys, focus, requests to close, parts that need painting.
// pollInput (provider.h) takes all events; focus that is lost and regained with no key in between
// posts nothing.
#pragma once

#include <SDL.h>

// Handles one event of the game's window that another file has taken from SDL. A change of focus
// is posted by the next pollInput().
void handleGameWindowEvent(const SDL_WindowEvent& event);
