// Bitmap files: uncompressed 24-bit pictures, the game's only picture format.
//
// The reader takes a 14-byte file header, a 40-byte information header and, from byte 54 on, the
// pixels packed row after row, bottom row first, as OpenGL wants them. Rows are not padded, which
// a standard file agrees with whenever its width times 3 is a multiple of 4.
#pragma once

#include <cstdint>

// Reads a picture of exactly width x height pixels into width * height * 3 bytes, red, green, blue.
// False, with no message, when the file cannot be read or holds a picture of another size or depth:
// nothing is ever written past the buffer. A file that ends early counts as read; in place
// of the pixels it lacks stands what the buffer held, its red and blue exchanged.
bool readBitmap(const char* fileName, std::int32_t width, std::int32_t height,
                std::uint8_t* pixels);
