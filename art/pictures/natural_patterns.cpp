#include "art/pictures/ground_textures.h"

#include <cmath>

#include "art/common/portable_math.h"
#include "art/pictures/noise.h"

namespace {

constexpr Lattice stoneLattice{tileWidth, tileLength, 5, 4};
constexpr Lattice floeLattice{tileWidth, tileLength, 3, 2};
constexpr Lattice plateLattice{tileWidth, tileLength, 4, 3};
constexpr Lattice cloudLattice{tileWidth, tileLength, 8, 6};

// Returns the cell of a diagram whose borders noise makes rough.
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
    const VoronoiCell spot = roughCell(stoneLattice, x, y, 6.0, 400);
    const double grit = fractalNoise({tileWidth, tileLength, 24, 18}, x, y, 440);
    const Colour stone = lerp(srgb(0x6d6a70), srgb(0xc9bfae), spot.tone);
    const double roundness = smoothstep(1.5, 8.0, spot.toEdge);
    const double side = clamp01(0.5 + (spot.dy - spot.dx) * 0.028);
    const Colour lit =
        stone * ((0.55 + 0.45 * roundness) * (0.8 + 0.5 * side) * (0.8 + 0.4 * grit));
    const Colour moss = lerp(srgb(0x16240f), srgb(0x3f5a22), grit);
    return lerp(moss, lit, smoothstep(1.3, 2.6, spot.toEdge));
}

Colour icePattern(double x, double y) {
    const VoronoiCell floe = roughCell(floeLattice, x, y, 14.0, 600);
    const VoronoiCell split = roughCell({tileWidth, tileLength, 6, 5}, x, y, 10.0, 640);
    const double cloud = fractalNoise(cloudLattice, x, y, 680);
    const Colour deep = lerp(srgb(0x1d5f98), srgb(0x58a8d8), floe.tone);
    const Colour body = lerp(deep, srgb(0xa8dcf4), 0.55 * cloud);
    const double hair = 1.0 - smoothstep(0.3, 1.2, split.toEdge);
    const double frost = exponential(-floe.toEdge / 5.0);
    const double crack = 1.0 - smoothstep(1.2, 2.4, floe.toEdge);
    const Colour frosted =
        lerp(lerp(body, srgb(0xd8f2ff), 0.45 * hair), srgb(0xd8f4ff), 0.5 * frost);
    return lerp(frosted, srgb(0xffffff), crack);
}

Colour lavaPattern(double x, double y) {
    const VoronoiCell plate = roughCell(plateLattice, x, y, 12.0, 800);
    const double crust = fractalNoise({tileWidth, tileLength, 16, 12}, x, y, 840);
    const Colour rock =
        lerp(srgb(0x1a1214), srgb(0x584648), 0.25 + 0.5 * crust) * (0.6 + 0.8 * plate.tone);
    const double glow = exponential(-plate.toEdge / 4.0);
    const Colour heated = rock + srgb(0xc02a08) * (0.9 * glow);
    const Colour core = lerp(srgb(0xff6a10), srgb(0xffd860), crust);
    return lerp(heated, core, 1.0 - smoothstep(1.4, 3.0, plate.toEdge));
}
