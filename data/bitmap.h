// Bitmap files: uncompressed 24-bit pictures, the game's only picture format.
//
// A file is a file header, an information header and the pixels, packed row after row, bottom row
// first, as OpenGL takes them. Rows are not padded; in a standard file they are not either when the
// width is a multiple of 4. Nothing here reads a file: app/bitmap_file.h does, and the level tool.
#pragma once

#include <cstdint>

inline constexpr int bitmapFileHeaderSize = 14; // bytes
inline constexpr int bitmapInfoHeaderSize = 40; // bytes
inline constexpr int bytesPerPixel = 3;

// The fields of the information header that the game uses.
struct BitmapInfo {
    std::int32_t width;  // pixels
    std::int32_t height; // pixels
    int bitsPerPixel;
};

BitmapInfo parseBitmapInfo(const std::uint8_t (&infoHeader)[bitmapInfoHeaderSize]);

// Returns the number of bytes that the pixels take, or -1 for a picture that the game cannot show:
// of another depth, with its rows stored from the top, or of more bytes than 31 bits count.
std::int64_t pixelBytes(const BitmapInfo& info);

// Converts pixels from the file's order blue, green, red to red, green, blue, or back.
void swapRedAndBlue(std::uint8_t* pixels, std::int64_t byteCount);
