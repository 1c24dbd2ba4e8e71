// The screen in pixels and in normalised device coordinates (NDC), which run from -1 to 1, x to the
// right and y upwards.
#pragma once

#include "platform/display_mode.h"

inline constexpr float screenCentreX = screenWidth / 2.0F;  // pixels
inline constexpr float screenCentreY = screenHeight / 2.0F; // pixels

inline constexpr double ndcPerPixelX = 2.0 / screenWidth;
inline constexpr double ndcPerPixelY = 2.0 / screenHeight;
