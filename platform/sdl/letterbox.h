// The place of the game's picture in a window of any shape.
#pragma once

#include <algorithm>

#include "platform/display_mode.h"

// Pixels of a window's drawing area; x and y count from its lower left corner.
struct PixelRect {
    int x;
    int y;
    int width;
    int height;
};

// Returns the largest centred rectangle of the game's shape, 4:3, in an area of that many pixels.
// It is empty when the area is.
constexpr PixelRect letterbox(int areaWidth, int areaHeight) {
    const int width = std::min(areaWidth, areaHeight * screenWidth / screenHeight);
    const int height = std::min(areaHeight, areaWidth * screenHeight / screenWidth);
    return {(areaWidth - width) / 2, (areaHeight - height) / 2, width, height};
}
