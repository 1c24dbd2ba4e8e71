// The one pixel format that the providers offer: the colours and the depth of the game's display.
#pragma once

#include "platform/windows_api.h"

inline constexpr int onlyPixelFormat = 1; // its number, and the highest of a format

// Copies up to `size` bytes of its description; to null nothing.
void copyPixelFormat(UINT size, PIXELFORMATDESCRIPTOR* description);
