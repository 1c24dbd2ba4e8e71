#include "art/pictures/dither.h"

#include <algorithm>
#include <cmath>

#include "art/pictures/portable_math.h"

namespace {

// The display byte 0..255 that the given number of bits holds nearest to a value 0..1.
int nearestByte(double value, int bits) {
    const int levels = (1 << bits) - 1;
    const int level = std::clamp(static_cast<int>(std::floor(value * levels + 0.5)), 0, levels);
    return (level << (8 - bits)) | (level >> (2 * bits - 8));
}

// One colour channel of the picture as display values, into which the errors are spread.
struct Plane {
    int width;
    int height;
    std::vector<double> values;

    void add(int x, int y, double error) {
        if (x < 0 || x >= width || y >= height) return;
        values[static_cast<std::size_t>(y * width + x)] += error;
    }
};

void diffuse(Plane& plane, int bits, std::uint8_t* firstByte) {
    for (int y = 0; y < plane.height; ++y) {
        const int forward = y % 2 == 0 ? 1 : -1;
        for (int i = 0; i < plane.width; ++i) {
            const int x = forward > 0 ? i : plane.width - 1 - i;
            const auto index = static_cast<std::size_t>(y * plane.width + x);
            const int byte = nearestByte(plane.values[index], bits);
            const double error = plane.values[index] - byte / 255.0;
            firstByte[index * 3] = static_cast<std::uint8_t>(byte);
            plane.add(x + forward, y, error * 7.0 / 16.0);
            plane.add(x - forward, y + 1, error * 3.0 / 16.0);
            plane.add(x, y + 1, error * 5.0 / 16.0);
            plane.add(x + forward, y + 1, error * 1.0 / 16.0);
        }
    }
}

} // namespace

Picture ditheredTo565(const Canvas& canvas) {
    using Channel = float Colour::*;
    constexpr Channel channels[] = {&Colour::red, &Colour::green, &Colour::blue};
    constexpr int bits[] = {5, 6, 5};
    Picture picture(canvas.width, canvas.height);
    for (int c = 0; c < 3; ++c) {
        Plane plane{canvas.width, canvas.height, {}};
        for (const Colour& pixel : canvas.pixels)
            plane.values.push_back(displayValue(clamp01(pixel.*channels[c])));
        diffuse(plane, bits[c], picture.bytes.data() + c);
    }
    return picture;
}
