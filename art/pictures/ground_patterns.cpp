#include "art/pictures/ground_textures.h"

#include <cmath>

#include "art/common/portable_math.h"
#include "art/common/random.h"
#include "art/pictures/noise.h"
#include "art/pictures/typeface.h"

namespace {

constexpr double gridWidth = tileWidth / 4; // of the squares between lines
constexpr double gridDepth = tileLength / 4;

double fraction(double v) {
    return v - std::floor(v);
}

// Returns the distance from v to the nearest multiple of the period.
double fromMultiple(double v, double period) {
    return std::fabs(v - period * std::floor(v / period + 0.5));
}

// A place in a honeycomb of 6 columns and 4 rows.
struct HexagonSpot {
    double toEdge; // 0 in the joint, 1 in the middle
    double rise;   // -1..1, from the lower left to the upper right edge
    double tone;
};

constexpr double hexagonWidth = tileLength / 4;     // between two flat sides, along y
constexpr double hexagonColumn = tileWidth / 6;     // from column to column
constexpr double flatSideTilt = 0.8660254037844386; // sine of 60 degrees

// Returns 0..1. The tones are mixed evenly: each column has four, each row nearly so.
double hexagonTone(int column, int row) {
    return 0.1 + 0.25 * ((row + 2 * (column % 2) + column / 2) % 4) + 0.1 * hash01(column, row, 71);
}

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
        if (toEdge > spot.toEdge) {
            spot = {toEdge, 0.5 * dx + 0.5 * dy, hexagonTone((column + 6) % 6, (row + 4) % 4)};
        }
    }
    return spot;
}

// The colours of glowing lines on a checker.
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
    const double line = 1.0 - smoothstep(1.6, 2.6, toLine);
    return lerp(lerp(floor, colours.glow, 0.55 * glow), colours.line, line);
}

// The copper traces. They continue across the edges of the tile.
const Skeleton& traces() {
    static const Skeleton copper = readSkeleton(
        "W 2.2 M 0 20 L 50 20 L 70 40 L 110 40 L 130 20 L 160 20 M 130 20 L 130 0 "
        "M 30 10 L 30 50 L 60 80 L 60 100 L 40 120 M 40 0 L 30 10 M 0 80 L 20 80 L 40 100 L 40 120 "
        "M 90 0 L 90 40 M 90 120 L 90 90 L 110 70 L 140 70 L 150 80 L 160 80 M 60 54 L 60 30 "
        "M 130 120 L 130 100 L 160 100 M 0 100 L 8 108 L 18 108 M 130 20 L 130 40 L 142 52 L 156 "
        "52 "
        "M 60 8 L 75 8 L 90 23 M 110 0 L 110 40 M 110 120 L 110 108 M 75 108 L 75 95 L 60 80 "
        "M 12 70 L 12 38 L 30 20");
    return copper;
}

constexpr Point pads[] = {{30, 20},  {70, 40},   {110, 40}, {130, 20}, {60, 80},  {90, 90},
                          {140, 70}, {130, 100}, {20, 80},  {90, 64},  {18, 108}, {142, 52},
                          {60, 8},   {110, 12},  {75, 108}, {12, 50},  {110, 108}};

double toPad(double x, double y) {
    double nearest = 1e9;
    for (const Point& pad : pads) {
        nearest = std::fmin(nearest, (pad.x - x) * (pad.x - x) + (pad.y - y) * (pad.y - y));
    }
    return std::sqrt(nearest);
}

constexpr Lattice stoneLattice{tileWidth, tileLength, 5, 4};
constexpr Lattice floeLattice{tileWidth, tileLength, 3, 2};
constexpr Lattice plateLattice{tileWidth, tileLength, 4, 3};
constexpr Lattice cloudLattice{tileWidth, tileLength, 8, 6};

// Returns the cell of a Voronoi diagram whose borders are roughened by noise.
VoronoiCell roughCell(const Lattice& lattice, double x, double y, double roughness,
                      std::uint32_t seed) {
    const double dx = (fractalNoise(cloudLattice, x, y, seed + 10) - 0.5) * roughness;
    const double dy = (fractalNoise(cloudLattice, x, y, seed + 20) - 0.5) * roughness;
    return voronoiCell(lattice, x + dx, y + dy, 0.75, seed);
}

// Returns the distance to the nearest stone; they are at the corners and the middle of the tile.
double fromStone(double x, double y) {
    const double cx = x - tileWidth * std::floor(x / tileWidth + 0.5);
    const double cy = y - tileLength * std::floor(y / tileLength + 0.5);
    const double mx = x - tileWidth * (std::floor(x / tileWidth) + 0.5);
    const double my = y - tileLength * (std::floor(y / tileLength) + 0.5);
    return std::sqrt(std::fmin(cx * cx + cy * cy, mx * mx + my * my));
}

} // namespace

Colour gridPattern(double x, double y) {
    static const GridColours colours{srgb(0x121d46), srgb(0x203a74), srgb(0x2f8ee0),
                                     srgb(0x8ff2ff)};
    return gridLight(x, y, colours);
}

Colour emberPattern(double x, double y) {
    static const GridColours colours{srgb(0x1c0a16), srgb(0x4a1a28), srgb(0xc8481c),
                                     srgb(0xffb45a)};
    return gridLight(x, y, colours);
}

Colour hexagonPattern(double x, double y) {
    const HexagonSpot spot = hexagonAt(x, y);
    const Colour enamel = lerp(srgb(0x229eb4), srgb(0x4d9a67), spot.tone);
    const Colour shaded = enamel * (1.0 + 0.35 * spot.rise);
    const double rim = 1.0 - smoothstep(0.18, 0.30, spot.toEdge);
    const Colour tile = lerp(shaded, enamel * (1.5 + 0.9 * spot.rise), rim * 0.8);
    return lerp(srgb(0x03201f), tile, smoothstep(0.06, 0.13, spot.toEdge));
}

Colour plankPattern(double x, double y) {
    constexpr double boardDepth = 20.0;
    constexpr double boardLength = 80.0;
    const int row = static_cast<int>(std::floor(y / boardDepth));
    const double shifted = x + 160.0 * hash01(row, 0, 5);
    const int board = static_cast<int>(std::floor(shifted / boardLength)) & 1;
    const double toJoint =
        std::fmin(fromMultiple(y, boardDepth), 0.8 * fromMultiple(shifted, boardLength));
    const double grain = fractalNoise({tileWidth, tileLength, 3, 24}, x, y, 90);
    const double veins = 0.5 + 0.5 * sine(2.0 * pi * (y / 4.0 + 2.4 * grain));
    const double tone = hash01(row, board, 21);
    const Colour wood = lerp(srgb(0x8a4a1c), srgb(0xe0a050), 0.25 + 0.6 * tone);
    const Colour grained = lerp(wood, wood * 0.62, 0.55 * veins * grain);
    const double upperEdge = smoothstep(0.78, 0.92, fraction(y / boardDepth));
    const Colour edged = lerp(grained, srgb(0xffd58c), 0.35 * upperEdge);
    return lerp(srgb(0x1c0c08), edged, smoothstep(0.7, 1.7, toJoint));
}

// Each row of scales covers the upper part of the row before it.
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
        if (r > 1.0 || dy > 0.0) { continue; }
        const double tone = hash01((column + 4) % 4, (row + 16) % 8, 33);
        const Colour body = lerp(srgb(0x0c5a34), srgb(0x35b04e), 0.2 + 0.7 * tone);
        const Colour ridge = lerp(body, body * 0.45, 1.0 - smoothstep(0.0, 0.7, r));
        const Colour rimmed = lerp(ridge, srgb(0xd8f070), smoothstep(0.80, 0.88, r) * 0.85);
        return lerp(rimmed, srgb(0x021208), smoothstep(0.94, 0.98, r));
    }
    return srgb(0x021208);
}

Colour circuitPattern(double x, double y) {
    const double copper = signedDistance(traces(), {x, y});
    const double pad = toPad(x, y);
    const Colour traced = lerp(srgb(0x0a4028), srgb(0xd89a30), 1.0 - smoothstep(-0.4, 0.6, copper));
    const Colour glowing = traced + srgb(0x30ff90) * (0.3 * exponential(-pad / 6.0));
    const Colour ringed = lerp(glowing, srgb(0xffe090), 1.0 - smoothstep(5.5, 6.5, pad));
    return lerp(ringed, srgb(0x0a3020), 1.0 - smoothstep(2.2, 3.0, pad));
}

Colour ribbonPattern(double x, double y) {
    const double sway = 0.06 * sine(2.0 * pi * y / tileLength) * sine(2.0 * pi * x / tileWidth);
    const double across = fraction(2.0 * x / tileWidth + 2.0 * y / tileLength + sway) * 4.0;
    constexpr std::uint32_t colours[] = {0xd0407c, 0xf6dcc0, 0x7a2a80, 0xf08c58};
    const int band = static_cast<int>(across) & 3;
    const double inBand = across - std::floor(across);
    const double edge = std::fmin(inBand, 1.0 - inBand);
    const Colour ribbon = srgb(colours[band]);
    const Colour raised = ribbon * (0.72 + 0.5 * inBand);
    return lerp(srgb(0x2a0a2c), raised, smoothstep(0.03, 0.08, edge));
}

Colour sandPattern(double x, double y) {
    constexpr double furrow = 11.0;
    const double grain = fractalNoise({tileWidth, tileLength, 32, 24}, x, y, 200);
    const double r =
        fromStone(x, y) + 2.0 * (fractalNoise({tileWidth, tileLength, 6, 5}, x, y, 220) - 0.5);
    const double wave = 0.5 + 0.5 * cosine(2.0 * pi * r / furrow);
    const Colour sand = lerp(srgb(0x9a5c2c), srgb(0xf4d090), smoothstep(0.1, 0.8, wave));
    const Colour raked = sand * (0.8 + 0.4 * grain);
    const Colour stone = lerp(srgb(0x4a3026), srgb(0xb89878), smoothstep(0.0, 8.0, 8.0 - r));
    return lerp(stone, raked, smoothstep(7.0, 8.5, r));
}

Colour pavingPattern(double x, double y) {
    const VoronoiCell spot = roughCell(stoneLattice, x, y, 6.0, 436);
    const double grit = fractalNoise({tileWidth, tileLength, 24, 18}, x, y, 440);
    const Colour stone = lerp(srgb(0x858688), srgb(0xb5a898), spot.tone);
    const double roundness = smoothstep(1.5, 8.0, spot.toEdge);
    const double side = clamp01(0.5 + (spot.dy - spot.dx) * 0.028);
    const Colour lit =
        stone * ((0.65 + 0.35 * roundness) * (0.8 + 0.5 * side) * (0.8 + 0.4 * grit));
    const Colour moss = lerp(srgb(0x20301a), srgb(0x4a662c), grit);
    return lerp(moss, lit, smoothstep(1.3, 2.6, spot.toEdge));
}

Colour icePattern(double x, double y) {
    const VoronoiCell floe = roughCell(floeLattice, x, y, 14.0, 734);
    const VoronoiCell split = roughCell({tileWidth, tileLength, 6, 5}, x, y, 10.0, 640);
    const double cloud = fractalNoise(cloudLattice, x, y, 680);
    const Colour deep = lerp(srgb(0x2888cc), srgb(0x48829c), floe.tone);
    const Colour body = lerp(deep, srgb(0xa8dcf4), 0.3 + 0.2 * cloud);
    const double hair = 1.0 - smoothstep(0.3, 1.2, split.toEdge);
    const double frost = exponential(-floe.toEdge / 5.0);
    const double crack = 1.0 - smoothstep(1.2, 2.4, floe.toEdge);
    const Colour pale = lerp(lerp(body, srgb(0xd8f2ff), 0.3 * hair), srgb(0xd8f4ff), 0.2 * frost);
    return lerp(pale, srgb(0xf4fbff), crack);
}

Colour lavaPattern(double x, double y) {
    const VoronoiCell plate = roughCell(plateLattice, x, y, 12.0, 823);
    const double crust = fractalNoise({tileWidth, tileLength, 16, 12}, x, y, 840);
    const Colour rock =
        lerp(srgb(0x1a1214), srgb(0x584648), 0.25 + 0.5 * crust) * (0.8 + 0.4 * plate.tone);
    const double glow = exponential(-plate.toEdge / 4.0);
    const Colour heated = rock + srgb(0xc02a08) * (0.9 * glow);
    const Colour core = lerp(srgb(0xff6a10), srgb(0xffd860), crust);
    return lerp(heated, core, 1.0 - smoothstep(1.4, 3.0, plate.toEdge));
}
