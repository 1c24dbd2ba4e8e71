// Pictures of the game's 640 x 480 surface, and what they should look like.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

// Red, green and blue, each 0..255.
struct Pixel {
    double red, green, blue;
};

constexpr Pixel operator*(Pixel p, double s) {
    return {p.red * s, p.green * s, p.blue * s};
}
constexpr Pixel operator+(Pixel a, Pixel b) {
    return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}

// Rows from the bottom up, as OpenGL counts.
struct Picture {
    std::vector<Pixel> pixels = std::vector<Pixel>(640 * 480);

    Pixel& at(int x, int y) { return pixels[static_cast<std::size_t>(y * 640 + x)]; }
};

// Returns what is on the surface now.
Picture photograph();

// Returns the picture with these pixels.
Picture paint(const std::function<Pixel(int x, int y)>& pixelAt);

// Expects two pictures to be the same within `tolerance` of 255 a colour, except for a share of the
// pixels. Otherwise writes <name>-actual.bmp and <name>-expected.bmp to the build folder.
void expectLike(const Picture& actual, const Picture& expected, const std::string& name,
                double tolerance = 10, double shareOfMisses = 0);
