// Pictures from bitmap files (data/bitmap.h has their format), read through the system's files.
#pragma once

#include <cstdint>
#include <string>

#include "data/mip_chain.h"

// Reads a picture whose pixels take at most `capacity` bytes, whatever its width and height: red,
// green, blue. Returns false, with no message, when the file cannot be read, or holds a larger
// picture, one of another depth, or one stored from the top: nothing is ever written past the
// buffer. A file that ends early counts as read; the pixels it lacks keep what the buffer held,
// with red and blue exchanged.
bool readBitmap(const char* fileName, std::uint8_t* pixels, std::int32_t capacity);

// The same for a picture of exactly width x height pixels; one of another size is refused.
bool readBitmapOfSize(const char* fileName, std::int32_t width, std::int32_t height,
                      std::uint8_t* pixels);

// Reads all files of a chain into its slots, in their order. A picture of another size is taken
// when its bytes fit the slot; they then serve
// as those of a picture of the level's size. Returns false at the first file that cannot be read, with its name
// in `picture`; of a base name too long for any, with that.
bool readMipChain(const MipChain& chain, const char* baseName, std::uint8_t* slots,
                  std::string& picture);
