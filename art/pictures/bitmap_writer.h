// Bitmap files as the game reads them: 24 bits, uncompressed, a 14-byte and a 40-byte header.
//
// The game takes width x height x 3 bytes from byte 54 on, bottom row first, without padding
// between rows. From 4 pixels of width on our sizes need no padding and the files are standard.
// The 2 x 2 and 1 x 1 levels at the end of a mip chain do: their rows are written packed, for the
// game, and the missing padding follows at the end, so that the file has the size that its header
// promises and viewers open it (they show the upper row of a 2 x 2 picture in shifted colours).
#pragma once

#include <string>

#include "art/pictures/canvas.h"

// Writes the picture to the file, replacing it. False when the file cannot be written.
bool writeBitmap(const Picture& picture, const std::string& fileName);
