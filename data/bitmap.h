// Bitmap files: uncompressed 24-bit pictures, the game's only picture format.
//
// The reader takes a 14-byte file header, a 40-byte information header and, from byte 54 on, the
// pixels packed row after row, bottom row first, as OpenGL wants them. Rows are not padded, which
// a standard file agrees with whenever its width times 3 is a multiple of 4.
#pragma once

#include <cstdint>

// Reads a picture whose pixels take at most `capacity` bytes, whatever its width and height: red,
// green, blue. False, with no message, when the file cannot be read, holds a larger picture, one
// with another depth or one stored top row first: nothing is ever written past the buffer. A file
// that ends early counts as read; in place of the pixels it lacks stands what the buffer held, its
// red and blue exchanged.
bool readBitmap(const char* fileName, std::uint8_t* pixels, std::int32_t capacity);

// The same for a picture of exactly width x height pixels; one of another size is refused.
bool readBitmapOfSize(const char* fileName, std::int32_t width, std::int32_t height,
                      std::uint8_t* pixels);
