#include <cmath>

#include "art/pictures/ground_patterns.h"
#include "art/pictures/ground_textures.h"
#include "art/pictures/noise.h"
#include "art/pictures/portable_math.h"

namespace {

constexpr Lattice stoneLattice{tileWidth, tileLength, 5, 4};
constexpr Lattice floeLattice{tileWidth, tileLength, 3, 2};
constexpr Lattice plateLattice{tileWidth, tileLength, 4, 3};
constexpr Lattice cloudLattice{tileWidth, tileLength, 8, 6};

// Borders drawn with a trembling hand: the place moved by noise.
CellSpot roughCellAt(const Lattice& lattice, double x, double y, double roughness,
                     std::uint32_t seed) {
    const double dx = (cloudNoise(cloudLattice, x, y, seed + 10) - 0.5) * roughness;
    const double dy = (cloudNoise(cloudLattice, x, y, seed + 20) - 0.5) * roughness;
    return cellAt(lattice, x + dx, y + dy, 0.75, seed);
}

} // namespace

Colour pavingPattern(double x, double y) {
    const CellSpot spot = roughCellAt(stoneLattice, x, y, 6.0, 400);
    const double grit = cloudNoise({tileWidth, tileLength, 24, 18}, x, y, 440);
    const Colour stone = mix(colourOf(0x6d6a70), colourOf(0xc9bfae), spot.tone);
    const double roundness = smoothStep(1.5, 8.0, spot.toEdge);
    const double side = clamp01(0.5 + (spot.dy - spot.dx) * 0.028);
    const Colour lit =
        stone * ((0.55 + 0.45 * roundness) * (0.8 + 0.5 * side) * (0.8 + 0.4 * grit));
    const Colour moss = mix(colourOf(0x16240f), colourOf(0x3f5a22), grit);
    return mix(moss, lit, smoothStep(1.3, 2.6, spot.toEdge));
}

Colour icePattern(double x, double y) {
    const CellSpot floe = roughCellAt(floeLattice, x, y, 14.0, 600);
    const CellSpot split = roughCellAt({tileWidth, tileLength, 6, 5}, x, y, 10.0, 640);
    const double cloud = cloudNoise(cloudLattice, x, y, 680);
    const Colour deep = mix(colourOf(0x1d5f98), colourOf(0x58a8d8), floe.tone);
    const Colour body = mix(deep, colourOf(0xa8dcf4), 0.55 * cloud);
    const double hair = 1.0 - smoothStep(0.3, 1.2, split.toEdge);
    const double frost = exponential(-floe.toEdge / 5.0);
    const double crack = 1.0 - smoothStep(1.2, 2.4, floe.toEdge);
    const Colour frosted =
        mix(mix(body, colourOf(0xd8f2ff), 0.45 * hair), colourOf(0xd8f4ff), 0.5 * frost);
    return mix(frosted, colourOf(0xffffff), crack);
}

Colour lavaPattern(double x, double y) {
    const CellSpot plate = roughCellAt(plateLattice, x, y, 12.0, 800);
    const double crust = cloudNoise({tileWidth, tileLength, 16, 12}, x, y, 840);
    const Colour rock =
        mix(colourOf(0x1a1214), colourOf(0x584648), 0.25 + 0.5 * crust) * (0.6 + 0.8 * plate.tone);
    const double glow = exponential(-plate.toEdge / 4.0);
    const Colour heated = rock + colourOf(0xc02a08) * (0.9 * glow);
    const Colour core = mix(colourOf(0xff6a10), colourOf(0xffd860), crust);
    return mix(heated, core, 1.0 - smoothStep(1.4, 3.0, plate.toEdge));
}
