#include <cmath>

#include "art/pictures/ground_patterns.h"
#include "art/pictures/ground_textures.h"
#include "art/pictures/noise.h"
#include "art/pictures/portable_math.h"
#include "art/pictures/strokes.h"

namespace {

double fraction(double v) {
    return v - std::floor(v);
}

// The distance to the nearest of the two stones that a tile has: at its corners and its middle.
double fromStone(double x, double y) {
    const double cx = x - tileWidth * std::floor(x / tileWidth + 0.5);
    const double cy = y - tileLength * std::floor(y / tileLength + 0.5);
    const double mx = x - tileWidth * (std::floor(x / tileWidth) + 0.5);
    const double my = y - tileLength * (std::floor(y / tileLength) + 0.5);
    return std::sqrt(std::fmin(cx * cx + cy * cy, mx * mx + my * my));
}

// Copper on the board, as skeleton strokes; pads are balls. It leaves the tile where it enters it.
const Skeleton& traces() {
    static const Skeleton copper =
        skeletonOf("W 2.2 M 0 20 L 50 20 L 70 40 L 110 40 L 130 20 L 160 20 "
                   "M 30 10 L 30 50 L 60 80 L 60 100 L 40 120 M 40 0 L 30 10 "
                   "M 0 80 L 20 80 L 40 100 L 40 120 "
                   "M 90 0 L 90 40 M 90 120 L 90 90 L 110 70 L 140 70 L 150 80 L 160 80 "
                   "M 130 20 L 130 0 M 130 120 L 130 100");
    return copper;
}

constexpr Point pads[] = {{30, 20}, {70, 40},  {110, 40},  {130, 20}, {60, 80},
                          {90, 90}, {140, 70}, {130, 100}, {20, 80},  {90, 64}};

double toPad(double x, double y) {
    double nearest = 1e9;
    for (const Point& pad : pads)
        nearest = std::fmin(nearest, (pad.x - x) * (pad.x - x) + (pad.y - y) * (pad.y - y));
    return std::sqrt(nearest);
}

} // namespace

Colour sandPattern(double x, double y) {
    constexpr double furrow = 11.0;
    const double grain = cloudNoise({tileWidth, tileLength, 32, 24}, x, y, 200);
    const double r =
        fromStone(x, y) + 2.0 * (cloudNoise({tileWidth, tileLength, 6, 5}, x, y, 220) - 0.5);
    const double wave = 0.5 + 0.5 * cosine(2.0 * pi * r / furrow);
    const Colour sand = mix(colourOf(0x9a5c2c), colourOf(0xf4d090), smoothStep(0.1, 0.8, wave));
    const Colour raked = sand * (0.8 + 0.4 * grain);
    const Colour stone = mix(colourOf(0x4a3026), colourOf(0xb89878), smoothStep(0.0, 8.0, 8.0 - r));
    return mix(stone, raked, smoothStep(7.0, 8.5, r));
}

Colour circuitPattern(double x, double y) {
    const int column = static_cast<int>(std::floor(x / 80.0));
    const int row = static_cast<int>(std::floor(y / 60.0));
    const Colour board = ((column + row) & 1) != 0 ? colourOf(0x06301f) : colourOf(0x0d4a30);
    const double copper = distanceToInk(traces(), {x, y});
    const double pad = toPad(x, y);
    const Colour traced = mix(board, colourOf(0xd89a30), 1.0 - smoothStep(-0.4, 0.6, copper));
    const Colour glowing = traced + colourOf(0x30ff90) * (0.5 * exponential(-pad / 6.0));
    const Colour ringed = mix(glowing, colourOf(0xffe090), 1.0 - smoothStep(5.5, 6.5, pad));
    return mix(ringed, colourOf(0x0a3020), 1.0 - smoothStep(2.2, 3.0, pad));
}

Colour ribbonPattern(double x, double y) {
    const double sway = 0.06 * sine(2.0 * pi * y / tileLength) * sine(2.0 * pi * x / tileWidth);
    const double across = fraction(2.0 * x / tileWidth + 2.0 * y / tileLength + sway) * 4.0;
    constexpr std::uint32_t colours[] = {0xd0407c, 0xf6dcc0, 0x7a2a80, 0xf08c58};
    const int band = static_cast<int>(across) & 3;
    const double inBand = across - std::floor(across);
    const double edge = std::fmin(inBand, 1.0 - inBand);
    const Colour ribbon = colourOf(colours[band]);
    const Colour raised = ribbon * (0.72 + 0.5 * inBand);
    return mix(colourOf(0x2a0a2c), raised, smoothStep(0.03, 0.08, edge));
}
