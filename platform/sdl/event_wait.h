// Waiting for the player.
#pragma once

// Waits until SDL has an event, at most for that many milliseconds. Returns true when it has one.
//
// SDL_WaitEventTimeout wakes itself by messages to a window, through a second connection to the
// X11 display. When the event closes that window, the message may come too late, and SDL ends the
// process with an error. This function looks for events every few milliseconds instead.
bool waitForEvent(int milliseconds);
