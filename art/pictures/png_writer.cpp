#include "art/pictures/png_writer.h"

#include <algorithm>
#include <cmath>

#include <png.h>

#include "art/pictures/portable_math.h"

namespace {

// How much of a pixel lies inside a square of the given size with rounded corners.
double insideRounded(double x, double y, double size, double corner) {
    const double half = 0.5 * size;
    const double dx = std::max(0.0, std::fabs(x - half) - (half - corner));
    const double dy = std::max(0.0, std::fabs(y - half) - (half - corner));
    return clamp01(corner + 0.5 - std::sqrt(dx * dx + dy * dy));
}

} // namespace

bool writeIcon(const Picture& picture, double corner, const std::string& fileName) {
    std::vector<std::uint8_t> pixels;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const std::uint8_t* colour = picture.at(x, y);
            const double inside = insideRounded(x + 0.5, y + 0.5, picture.width, corner);
            pixels.insert(pixels.end(), colour, colour + 3);
            pixels.push_back(static_cast<std::uint8_t>(inside * 255.0 + 0.5));
        }
    }
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGBA;
    return png_image_write_to_file(&image, fileName.c_str(), 0, pixels.data(), 0, nullptr) != 0;
}
