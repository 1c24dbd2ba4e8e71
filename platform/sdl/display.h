// The one display mode that the game knows, and how the desktop keeps up the belief in it: the mode
// is "on" while the game's window covers the screen.
#pragma once

#include "platform/windows_api.h"

inline constexpr int displayWidth = 640;  // pixels
inline constexpr int displayHeight = 480; // pixels
inline constexpr int displayDepth = 16;   // bits per pixel

// Whether a window that opens now shall cover the screen.
bool fullScreenWanted();
