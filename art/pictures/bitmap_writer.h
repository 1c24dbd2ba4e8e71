// Bitmap files as the game reads them: 24 bits, uncompressed, with headers of 14 and 40 bytes.
//
// The game reads width * height * 3 bytes from byte 54 on, bottom row first, without padding
// between rows. Widths that are multiples of 4 need no padding, and their files are standard. The
// 2 x 2 and 1 x 1 levels of a mip chain do need it: their rows are packed, for the game, and the
// missing bytes follow at the end, so that the file has the size that its header gives.
#pragma once

#include <filesystem>

#include "art/pictures/image.h"

// Replaces the file. Returns false, after a message, when it cannot be written.
bool writeBitmap(const Image8& image, const std::filesystem::path& file);
