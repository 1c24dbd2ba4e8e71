// The 2-D pieces of a frame, each drawn over what is there. Called by drawFrame only.
#pragma once

#include <cstdint>

// A picture of the whole screen: red, green, blue, bottom row first.
void drawPicture(const std::uint8_t* pixels);

// Darkens everything drawn so far to half.
void drawShade();

// The seconds of turbo left, as a bar that shrinks to the right and turns from green to red.
void drawTurboGauge();

// The level clock and, when the option is on, frames and ground triangles per second.
void drawStatsAndClock();

// "Level n", which starts large at each new level and shrinks away.
void drawBanner();

// The page of the menu that the selected item is on.
void drawMenu();
