#include <cmath>

#include "art/pictures/ground_patterns.h"
#include "art/pictures/ground_textures.h"
#include "art/pictures/noise.h"
#include "art/pictures/portable_math.h"

namespace {

constexpr double gridWidth = tileWidth / 4; // of the fields between lines
constexpr double gridDepth = tileLength / 4;

double fraction(double v) {
    return v - std::floor(v);
}

// How far v lies from the nearest multiple of the period.
double fromMultiple(double v, double period) {
    return std::fabs(v - period * std::floor(v / period + 0.5));
}

// The spot in a lattice of six-sided tiles, 4 across and 3 pairs of columns along the tile.
struct HexagonSpot {
    double toEdge; // 0 on the joint, 1 in the middle
    double rise;   // -1..1, from the lower left to the upper right edge
    double tone;
};

constexpr double hexagonWidth = tileLength / 4;     // between two flat sides, along y
constexpr double hexagonColumn = tileWidth / 6;     // from column to column
constexpr double flatSideTilt = 0.8660254037844386; // sine of 60 degrees

HexagonSpot hexagonAt(double x, double y) {
    HexagonSpot spot{-1.0, 0.0, 0.0};
    const int nearest = static_cast<int>(std::floor(x / hexagonColumn + 0.5));
    for (int column = nearest - 1; column <= nearest + 1; ++column) {
        const double shift = (column & 1) != 0 ? 0.5 * hexagonWidth : 0.0;
        const int row = static_cast<int>(std::floor((y - shift) / hexagonWidth + 0.5));
        const double dx = (x - column * hexagonColumn) / hexagonWidth * 2.0;
        const double dy = (y - shift - row * hexagonWidth) / hexagonWidth * 2.0;
        const double slant = flatSideTilt * std::fabs(dx) + 0.5 * std::fabs(dy);
        const double toEdge = 1.0 - std::fmax(std::fabs(dy), slant);
        if (toEdge <= spot.toEdge) continue;
        spot = {toEdge, 0.5 * dx + 0.5 * dy, chance((column + 6) % 6, (row + 4) % 4, 71)};
    }
    return spot;
}

// Glowing lines on a checker, by the colours of its two floors, of the glow and of the lines.
struct GridColours {
    Colour dark;
    Colour light;
    Colour glow;
    Colour line;
};

Colour gridLight(double x, double y, const GridColours& colours) {
    const int column = static_cast<int>(std::floor(x / gridWidth));
    const int row = static_cast<int>(std::floor(y / gridDepth));
    const Colour& floor = ((column + row) & 1) != 0 ? colours.dark : colours.light;
    const double toLine = std::fmin(fromMultiple(x, gridWidth), fromMultiple(y, gridDepth));
    const double glow = exponential(-toLine / 3.2);
    const double line = 1.0 - smoothStep(1.6, 2.6, toLine);
    return mix(mix(floor, colours.glow, 0.55 * glow), colours.line, line);
}

} // namespace

Colour gridPattern(double x, double y) {
    static const GridColours colours{colourOf(0x101a3e), colourOf(0x24407e), colourOf(0x2f8ee0),
                                     colourOf(0x8ff2ff)};
    return gridLight(x, y, colours);
}

Colour emberPattern(double x, double y) {
    static const GridColours colours{colourOf(0x1c0a16), colourOf(0x4a1a28), colourOf(0xc8481c),
                                     colourOf(0xffb45a)};
    return gridLight(x, y, colours);
}

Colour hexagonPattern(double x, double y) {
    const HexagonSpot spot = hexagonAt(x, y);
    const Colour enamel = mix(colourOf(0x0f6a6a), colourOf(0x5fd0a8), spot.tone * spot.tone);
    const Colour shaded = enamel * (1.0 + 0.35 * spot.rise);
    const double rim = 1.0 - smoothStep(0.18, 0.30, spot.toEdge);
    const Colour tile = mix(shaded, enamel * (1.5 + 0.9 * spot.rise), rim * 0.8);
    return mix(colourOf(0x03201f), tile, smoothStep(0.06, 0.13, spot.toEdge));
}

Colour plankPattern(double x, double y) {
    constexpr double boardDepth = 20.0;
    constexpr double boardLength = 80.0;
    const int row = static_cast<int>(std::floor(y / boardDepth));
    const double shifted = x + 160.0 * chance(row, 0, 5);
    const int board = static_cast<int>(std::floor(shifted / boardLength)) & 1;
    const double toJoint =
        std::fmin(fromMultiple(y, boardDepth), 0.8 * fromMultiple(shifted, boardLength));
    const double grain = cloudNoise({tileWidth, tileLength, 3, 24}, x, y, 90);
    const double veins = 0.5 + 0.5 * sine(2.0 * pi * (y / 4.0 + 2.4 * grain));
    const double tone = chance(row, board, 17);
    const Colour wood = mix(colourOf(0x8a4a1c), colourOf(0xe0a050), 0.25 + 0.6 * tone);
    const Colour grained = mix(wood, wood * 0.62, 0.55 * veins * grain);
    const double upperEdge = smoothStep(0.78, 0.92, fraction(y / boardDepth));
    const Colour edged = mix(grained, colourOf(0xffd58c), 0.35 * upperEdge);
    return mix(colourOf(0x1c0c08), edged, smoothStep(0.7, 1.7, toJoint));
}

// Scales hang like tiles of a roof: each row covers the upper part of the one before it.
Colour scalePattern(double x, double y) {
    constexpr double scaleWidth = 40.0;
    constexpr double rowStep = 15.0;
    constexpr double radius = 22.0;
    const int row0 = static_cast<int>(std::floor(y / rowStep));
    for (int row = row0 + 2; row >= row0 - 2; --row) {
        const double shift = (row & 1) != 0 ? 0.5 * scaleWidth : 0.0;
        const int column = static_cast<int>(std::floor((x - shift) / scaleWidth + 0.5));
        const double dx = x - shift - column * scaleWidth;
        const double dy = y - row * rowStep - radius * 0.9;
        const double r = std::sqrt(dx * dx + dy * dy) / radius;
        if (r > 1.0 || dy > 0.0) continue;
        const double tone = chance((column + 4) % 4, (row + 16) % 8, 33);
        const Colour body = mix(colourOf(0x0c5a34), colourOf(0x35b04e), 0.2 + 0.7 * tone);
        const Colour ridge = mix(body, body * 0.45, 1.0 - smoothStep(0.0, 0.7, r));
        const Colour rimmed = mix(ridge, colourOf(0xd8f070), smoothStep(0.80, 0.88, r) * 0.85);
        return mix(rimmed, colourOf(0x021208), smoothStep(0.94, 0.98, r));
    }
    return colourOf(0x021208);
}
