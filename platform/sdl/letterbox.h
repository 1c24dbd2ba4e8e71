// Where the game's picture stands in a window of another shape.
#pragma once

#include <algorithm>

#include "platform/sdl/display.h"

// Pixels of a window's drawing area; x and y count from its lower left corner.
struct PixelRect {
    int x;
    int y;
    int width;
    int height;
};

// The largest centred rectangle with the display's 4:3 in an area of that many pixels; empty when
// the area is.
constexpr PixelRect letterbox(int areaWidth, int areaHeight) {
    const int width = std::min(areaWidth, areaHeight * displayWidth / displayHeight);
    const int height = std::min(areaHeight, areaWidth * displayHeight / displayWidth);
    return {(areaWidth - width) / 2, (areaHeight - height) / 2, width, height};
}
