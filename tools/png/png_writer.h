// Writes PNG files, for maps and icons. The bytes of a file depend on the version of the
// compression library.
#pragma once

#include <cstdint>
#include <span>
#include <string>

// Both write a picture of width x height pixels, top row first, and replace the file. They return
// false, with the reason in `error`, when the file cannot be written.

// Four bytes for each pixel: red, green, blue, opacity.
bool writePngRgba(const std::string& file, int width, int height,
                  std::span<const std::uint8_t> pixels, std::string& error);

// One byte for each pixel: an index into the palette, which has red, green, blue of 1 to 256
// colours.
bool writePngPalette(const std::string& file, int width, int height,
                     std::span<const std::uint8_t> indices, std::span<const std::uint8_t> palette,
                     std::string& error);
