// The 2-D parts of a frame, each drawn over the frame so far. Only drawFrame calls them.
#pragma once

#include <cstdint>

// Draws a picture of the whole screen: bytes of red, green, blue, bottom row first.
void drawPicture(const std::uint8_t* pixels);

// Darkens everything drawn so far to half its brightness.
void drawShade();

// Draws the turbo left as a bar that shrinks to the right and turns from green to red.
void drawTurboGauge();

inline constexpr float clockX = 280.0F; // screen pixels: the left edge of the clock, at the top

// Draws the level clock and, when the option is on, frames and ground triangles per second.
void drawStatsAndClock();

// Draws "Level n", which starts large at each new level and shrinks until it disappears.
void drawBanner();

// Draws the menu page of the selected item.
void drawMenu();
