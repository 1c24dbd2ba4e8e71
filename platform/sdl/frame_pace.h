// The frame rate. The game draws a frame whenever no message waits, so this is the only place where
// it leaves the processor free.
#pragma once

#include <SDL.h>

// Waits until the window's display is nearly due for another frame after this function last
// returned, or for 4 ms where the display's rate is not known or above 250 frames a second. So
// there are not more frames than the display can show, where vertical sync does not see to that.
// Waits at most 50 ms, also when the clock jumps.
void waitForNextFrame(SDL_Window* window);

// For a picture that stays the same: waits for 40 ms, or until an event of SDL waits.
void waitWhileStill();

// For a hidden or minimised window: waits for 0.1 s, or until SDL has an event.
void waitWhileHidden();
