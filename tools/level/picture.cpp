#include "tools/level/picture.h"

#include <cmath>

#include "tools/png/png_writer.h"

Picture::Picture(int pixelsAcross, int pixelsDown)
    : width(pixelsAcross), height(pixelsDown),
      pixels(static_cast<std::size_t>(pixelsAcross) * static_cast<std::size_t>(pixelsDown)) {}

std::uint8_t Picture::addColour(PaletteColour colour) {
    palette.push_back(colour);
    return static_cast<std::uint8_t>(palette.size() - 1);
}

void Picture::put(int x, int y, std::uint8_t colour) {
    if (x < 0 || x >= width || y < 0 || y >= height) { return; }
    pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
           static_cast<std::size_t>(x)] = colour;
}

void Picture::dot(int x, int y, int thickness, std::uint8_t colour) {
    const int reach = thickness / 2;
    for (int row = y - reach; row <= y + reach; ++row) {
        for (int column = x - reach; column <= x + reach; ++column) {
            put(column, row, colour);
        }
    }
}

void Picture::line(double fromX, double fromY, double toX, double toY, int thickness,
                   std::uint8_t colour) {
    const double length = std::hypot(toX - fromX, toY - fromY);
    const int steps = static_cast<int>(length) + 1;
    for (int i = 0; i <= steps; ++i) {
        const double share = static_cast<double>(i) / steps;
        dot(static_cast<int>(std::lround(fromX + (toX - fromX) * share)),
            static_cast<int>(std::lround(fromY + (toY - fromY) * share)), thickness, colour);
    }
}

void Picture::circle(double centreX, double centreY, double radius, int thickness,
                     std::uint8_t colour) {
    constexpr int sides = 48;
    constexpr double turn = 2.0 * 3.14159265358979 / sides;
    for (int i = 0; i < sides; ++i) {
        line(centreX + radius * std::cos(i * turn), centreY + radius * std::sin(i * turn),
             centreX + radius * std::cos((i + 1) * turn),
             centreY + radius * std::sin((i + 1) * turn), thickness, colour);
    }
}

bool writePng(const Picture& picture, const std::string& fileName, std::string& error) {
    static_assert(sizeof(PaletteColour) == 3);
    const auto* palette = reinterpret_cast<const std::uint8_t*>(picture.palette.data());
    return writePngPalette(fileName, picture.width, picture.height, picture.pixels,
                           {palette, picture.palette.size() * 3}, error);
}
