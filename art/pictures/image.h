// Colours as amounts of light, and images made of them.
//
// Everything is mixed, filtered and lit in linear light. An image becomes sRGB bytes only when it
// is finished.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

// Linear light: 0 is black, 1 is the brightest that the display shows. May exceed 1 while an image
// is being made.
struct Colour {
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
};

Colour operator+(const Colour& a, const Colour& b);
Colour operator*(const Colour& a, const Colour& b);
Colour operator*(const Colour& a, double share);

// Returns the linear interpolation from a (share 0) to b (share 1).
Colour lerp(const Colour& a, const Colour& b, double share);

// Returns the linear light of an sRGB colour 0xRRGGBB.
Colour srgb(std::uint32_t code);

using Rgb8 = std::array<std::uint8_t, 3>; // red, green, blue

// A rectangle of pixels, top row first.
template <typename Pixel>
struct Raster {
    int width;
    int height;
    std::vector<Pixel> pixels;

    Raster(int w, int h)
        : width(w), height(h), pixels(static_cast<std::size_t>(w) * static_cast<std::size_t>(h)) {}

    Pixel& at(int x, int y) { return pixels[static_cast<std::size_t>(y * width + x)]; }
    const Pixel& at(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }
};

using Image = Raster<Colour>; // in linear light
using Image8 = Raster<Rgb8>;  // in sRGB bytes

// Rounds every pixel to sRGB bytes; light above 1 is clipped.
Image8 toSrgb8(const Image& image);

// Returns the image in those sRGB bytes that a display of 5-6-5 bits shows exactly, without bands:
// error diffusion by Floyd and Steinberg, every other row from right to left.
Image8 ditherTo565(const Image& image);

// Replaces a bitmap file in the format that the game reads (data/bitmap.h). Rows are never padded.
// When the width is not a multiple of 4, at the end of a mip chain, the padding follows the last
// row, so that the file has the size that its header gives. Returns false, after a message, when
// the file cannot be written.
bool writeBitmap(const Image8& image, const std::filesystem::path& file);
