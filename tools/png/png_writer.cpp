#include "tools/png/png_writer.h"

#include <png.h>

namespace {

png_image describe(int width, int height, png_uint_32 format) {
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = format;
    return image;
}

bool write(png_image& image, const std::string& file, const std::uint8_t* pixels,
           const std::uint8_t* palette, std::string& error) {
    if (png_image_write_to_file(&image, file.c_str(), 0, pixels, 0, palette) != 0) { return true; }
    error = file + ": " + image.message;
    return false;
}

} // namespace

bool writePngRgba(const std::string& file, int width, int height,
                  std::span<const std::uint8_t> pixels, std::string& error) {
    png_image image = describe(width, height, PNG_FORMAT_RGBA);
    return write(image, file, pixels.data(), nullptr, error);
}

bool writePngPalette(const std::string& file, int width, int height,
                     std::span<const std::uint8_t> indices, std::span<const std::uint8_t> palette,
                     std::string& error) {
    png_image image = describe(width, height, PNG_FORMAT_RGB_COLORMAP);
    image.colormap_entries = static_cast<png_uint_32>(palette.size() / 3);
    return write(image, file, indices.data(), palette.data(), error);
}
