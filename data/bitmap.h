// Bitmap files: uncompressed 24-bit pictures, the game's only picture format.
//
// A file is a 14-byte file header, a 40-byte information header and, from byte 54 on, the pixels
// packed row after row, bottom row first, as OpenGL wants them. Rows are not padded, which a
// standard file agrees with whenever its width times 3 is a multiple of 4. Nothing here reads a
// file: app/bitmap_file.h does, and so does the level tool.
#pragma once

#include <cstdint>

inline constexpr int bitmapFileHeaderSize = 14; // bytes
inline constexpr int bitmapInfoHeaderSize = 40; // bytes
inline constexpr int bytesPerPixel = 3;

// What the information header says.
struct BitmapInfo {
    std::int32_t width;  // pixels
    std::int32_t height; // pixels
    int bitsPerPixel;
};
BitmapInfo parseBitmapInfo(const std::uint8_t (&infoHeader)[bitmapInfoHeaderSize]);

// The number of bytes that the pixels take. Returns -1 for a picture that the game cannot show: of
// another depth, or with its rows stored from the top.
std::int64_t pixelBytes(const BitmapInfo& info);

// Turns the file's blue, green, red into red, green, blue, or back.
void exchangeRedAndBlue(std::uint8_t* pixels, std::int64_t byteCount);
