// Reads pictures from bitmap files (format: data/bitmap.h) with the functions of windows_api.h.
#pragma once

#include <cstdint>
#include <string>

#include "data/mip_chain.h"

// Reads a picture whose pixels take at most `capacity` bytes, whatever its width and height, as
// red, green, blue. Returns false, without a message, when the file cannot be read, or when it
// holds a larger picture, one of another depth, or one stored from the top; never writes past the
// buffer. A file that ends early counts as read; the missing pixels keep what the buffer held, with
// red and blue exchanged.
bool readBitmap(const char* fileName, std::uint8_t* pixels, std::int32_t capacity);

// The same for a picture of exactly width x height pixels; one of another size is refused.
bool readBitmapOfSize(const char* fileName, std::int32_t width, std::int32_t height,
                      std::uint8_t* pixels);

// Reads all files of a chain into its slots. A picture of another size is accepted when its bytes
// fit the slot; they then count as those of a picture of the level's size. Returns false at the
// first file that cannot be read, or when the base name is too long for a file name, with that name
// in `picture`.
bool readMipChain(const MipChain& chain, const char* baseName, std::uint8_t* slots,
                  std::string& picture);
