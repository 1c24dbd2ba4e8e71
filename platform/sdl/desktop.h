// The displays of the desktop. They are numbered from 0, the primary one.
#pragma once

#include <SDL.h>

// The most points that a title bar and borders add to the width or height of a window.
inline constexpr int frameAllowance = 48;

// Returns the display that shows most of the window; 0 when it is null or not known.
int displayOf(SDL_Window* window);

// Returns the part of the display that panels leave free, in points of the whole desktop; at (0, 0)
// and of the game's own size when SDL does not know it.
SDL_Rect usableArea(int display);

// Returns the coordinate, x and y alike, that lets SDL centre a window on the display.
int centreOf(int display);
