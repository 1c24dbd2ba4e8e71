// Reads pictures from bitmap files (format: data/bitmap.h) with the functions of windows_api.h.
#pragma once

#include <cstdint>

// Reads a picture whose pixels take at most `capacity` bytes, whatever its width and height, as
// red, green, blue. Returns false, without a message, when the file cannot be read, or when it
// holds a larger picture, one of another depth, or one stored from the top; never writes past the
// buffer. A file that ends early counts as read; the missing pixels keep what the buffer held, with
// red and blue exchanged.
bool readBitmap(const char* fileName, std::uint8_t* pixels, std::int32_t capacity);

// The same for a picture of exactly width x height pixels; one of another size is refused.
bool readBitmapOfSize(const char* fileName, std::int32_t width, std::int32_t height,
                      std::uint8_t* pixels);
