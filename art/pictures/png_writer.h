// PNG files, for the icons of the desktop. The pixels are the same everywhere; the bytes may differ
// with the version of the compressing library.
#pragma once

#include <string>

#include "art/pictures/canvas.h"

// Writes the picture with rounded corners, transparent outside; `corner` is their radius in pixels.
// False when the file cannot be written.
bool writeIcon(const Picture& picture, double corner, const std::string& fileName);
