#include "art/pictures/ground_textures.h"

#include <cmath>

#include "art/common/portable_math.h"
#include "art/common/random.h"
#include "art/pictures/noise.h"

namespace {

double fraction(double v) {
    return v - std::floor(v);
}

// A place in a wall of equal cells.
struct Cell {
    int column; // counted within the tile
    int row;
    double u; // from the cell's middle, world units
    double v;
    double toEdge; // distance to the rounded edge, below 0 in the joint
};

double toRoundedEdge(double u, double v, double width, double depth, double radius) {
    const double du = std::fabs(u) - (0.5 * width - radius);
    const double dv = std::fabs(v) - (0.5 * depth - radius);
    const double out = std::sqrt(std::fmax(du, 0.0) * std::fmax(du, 0.0) +
                                 std::fmax(dv, 0.0) * std::fmax(dv, 0.0));
    return radius - out - std::fmin(std::fmax(du, dv), 0.0);
}

// Returns the cell at a point of a wall of columns x rows cells. Every other row is shifted by half
// a cell if `bond` is set.
Cell cellAt(double x, double y, int columns, int rows, double joint, double radius, bool bond) {
    const double width = tileWidth / columns;
    const double depth = tileLength / rows;
    const int row = static_cast<int>(std::floor(y / depth));
    const double shifted = x - (bond && (row & 1) != 0 ? 0.5 * width : 0.0);
    const int column = static_cast<int>(std::floor(shifted / width));
    const double u = shifted - (column + 0.5) * width;
    const double v = y - (row + 0.5) * depth;
    return {(column % columns + columns) % columns, (row % rows + rows) % rows, u, v,
            toRoundedEdge(u, v, width - joint, depth - joint, radius)};
}

// Returns the height of a body whose edge is rounded over a width.
double rounded(double toEdge, double width, double height) {
    const double t = clamp01(toEdge / width);
    return t * (2.0 - t) * height;
}

// Paints a body in its joint.
Spot set(const Colour& body, const Colour& joint, double toEdge, double height) {
    return {lerp(joint, body, smoothstep(-0.5, 0.7, toEdge)), height};
}

double grainAt(double x, double y, std::uint32_t seed) {
    return fractalNoise({tileWidth, tileLength, 24, 18}, x, y, seed);
}

// A place in a honeycomb of 6 columns and 4 rows.
struct HexagonSpot {
    double toEdge; // 0 in the joint, 1 in the middle
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
    HexagonSpot spot{-1.0, 0.0};
    const int nearest = static_cast<int>(std::floor(x / hexagonColumn + 0.5));
    for (int column = nearest - 1; column <= nearest + 1; ++column) {
        const double shift = (column & 1) != 0 ? 0.5 * hexagonWidth : 0.0;
        const int row = static_cast<int>(std::floor((y - shift) / hexagonWidth + 0.5));
        const double dx = (x - column * hexagonColumn) / hexagonWidth * 2.0;
        const double dy = (y - shift - row * hexagonWidth) / hexagonWidth * 2.0;
        const double slant = flatSideTilt * std::fabs(dx) + 0.5 * std::fabs(dy);
        const double toEdge = 1.0 - std::fmax(std::fabs(dy), slant);
        if (toEdge > spot.toEdge) { spot = {toEdge, hexagonTone((column + 6) % 6, (row + 4) % 4)}; }
    }
    return spot;
}

// Returns the distance to the nearest of the points at the corners and the middle of the tile.
double fromCornerOrMiddle(double x, double y) {
    const double cx = x - tileWidth * std::floor(x / tileWidth + 0.5);
    const double cy = y - tileLength * std::floor(y / tileLength + 0.5);
    const double mx = x - tileWidth * (std::floor(x / tileWidth) + 0.5);
    const double my = y - tileLength * (std::floor(y / tileLength) + 0.5);
    return std::sqrt(std::fmin(cx * cx + cy * cy, mx * mx + my * my));
}

// Returns the cell of a Voronoi diagram whose borders are roughened by noise.
VoronoiCell roughCell(const Lattice& lattice, double x, double y, double roughness,
                      std::uint32_t seed) {
    constexpr Lattice cloud{tileWidth, tileLength, 8, 6};
    const double dx = (fractalNoise(cloud, x, y, seed + 10) - 0.5) * roughness;
    const double dy = (fractalNoise(cloud, x, y, seed + 20) - 0.5) * roughness;
    return voronoiCell(lattice, x + dx, y + dy, 0.75, seed);
}

// Patterns of light and dark cells are shifted by half a cell, so that all parts of a tile are
// equally light.
constexpr double halfColumn = 20.0;
constexpr double halfRow = 15.0;

} // namespace

Spot tilePattern(double x, double y) {
    constexpr std::uint32_t glazes[] = {0xfff8e4, 0xffa448, 0xfff4d8, 0x48b4e4};
    const Cell cell = cellAt(x + halfColumn, y + halfRow, 4, 4, 1.8, 4.0, false);
    const int other = (cell.column + cell.row) & 1;
    const Colour glaze = srgb(glazes[other + 2 * (cell.row & 1)]);
    return set(glaze, srgb(0x6a5048), cell.toEdge, rounded(cell.toEdge, 5.0, 2.8));
}

Spot snowPattern(double x, double y) {
    const double a = x / 40.0 + y / 30.0;
    const double b = x / 40.0 - y / 30.0;
    const double pillow = std::fabs(sine(pi * a) * sine(pi * b));
    const double height = 13.0 * std::sqrt(pillow) + 1.0 * grainAt(x, y, 300);
    const Colour snow = lerp(srgb(0x4078d0), srgb(0xffffff), smoothstep(0.0, 0.35, pillow));
    return {snow, height};
}

Spot terracottaPattern(double x, double y) {
    constexpr std::uint32_t clays[] = {0xf8b48c, 0xf0c8a4, 0xf4bab0, 0xf8c090};
    const Cell cell = cellAt(x, y, 3, 6, 2.8, 1.5, true);
    const Colour clay = srgb(clays[(cell.column + cell.row + cell.row / 2) & 3]);
    const double grit = grainAt(x, y, 440);
    const double height = rounded(cell.toEdge, 3.0, 2.0) + 0.8 * grit;
    return set(clay * (0.9 + 0.2 * grit), srgb(0xfffaf0), cell.toEdge, height);
}

Spot sandPattern(double x, double y) {
    constexpr double furrow = 12.0;
    const double grain = fractalNoise({tileWidth, tileLength, 32, 24}, x, y, 200);
    const double from = fromCornerOrMiddle(x, y);
    const double r = from + 3.0 * (fractalNoise({tileWidth, tileLength, 6, 5}, x, y, 220) - 0.5);
    const double wave = 0.5 + 0.5 * cosine(2.0 * pi * r / furrow);
    const Colour sand = lerp(srgb(0xd09448), srgb(0xffe4a0), wave) * (0.9 + 0.2 * grain);
    const Colour shell = srgb(0xf08c78);
    const double toEdge = 9.0 - r;
    const double height = toEdge > 0.0 ? 2.0 + rounded(toEdge, 6.0, 4.0) : 3.4 * wave;
    return {lerp(sand, shell, smoothstep(-0.5, 0.5, toEdge)), height + 0.6 * grain};
}

Spot hexagonPattern(double x, double y) {
    const HexagonSpot spot = hexagonAt(x, y);
    const Colour enamel = lerp(srgb(0x18b4d8), srgb(0x54dcb4), spot.tone);
    const double toEdge = (spot.toEdge - 0.09) * 0.5 * hexagonWidth;
    return set(enamel, srgb(0xe4fbff), toEdge, rounded(toEdge, 6.5, 3.4));
}

// Each row of scales covers the upper part of the row before it.
Spot scalePattern(double x, double y) {
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
        const Colour body = lerp(srgb(0x58b828), srgb(0xc8e040), 0.2 + 0.7 * tone);
        const Colour shaded = lerp(body * 0.55, body, smoothstep(0.2, 0.75, r));
        const Colour rimmed = lerp(shaded, srgb(0xf4ff98), smoothstep(0.82, 0.88, r) * 0.8);
        return {lerp(rimmed, srgb(0x2a6a18), smoothstep(0.95, 0.99, r)), 5.0 * r};
    }
    return {srgb(0x2a6a18), 0.0};
}

Spot moonPattern(double x, double y) {
    constexpr std::uint32_t hues[] = {0xd8c8ff, 0xf0c0e8, 0xc0d0ff, 0xdcd0ec};
    const Cell cell = cellAt(x, y, 2, 2, 3.0, 5.0, false);
    const Colour stone = srgb(hues[cell.column + 2 * cell.row]);
    const VoronoiCell pit = voronoiCell({tileWidth, tileLength, 4, 3}, x, y, 0.6, 518);
    const double rim = 4.0 + 5.0 * pit.tone;
    const double off = std::sqrt(pit.dx * pit.dx + pit.dy * pit.dy) / rim;
    const double bowl = off < 1.0 ? off * off : exponential(-6.0 * (off - 1.0) * (off - 1.0));
    const double dust = grainAt(x, y, 540);
    const double height = rounded(cell.toEdge, 4.0, 2.2) + 0.35 * rim * bowl + 0.6 * dust;
    return set(stone * (0.9 + 0.2 * dust), srgb(0x6854a0), cell.toEdge, height);
}

Spot circuitPattern(double x, double y) {
    const Cell cell = cellAt(x + halfColumn, y + halfRow, 4, 4, 3.6, 0.0, false);
    const double au = 20.0 - std::fabs(cell.u);
    const double av = 15.0 - std::fabs(cell.v);
    const int kind = (cell.column + 2 * cell.row + cell.row / 2) & 3;
    const double diagonal = std::fabs(cell.u * 0.6 + cell.v * (kind == 0 ? 0.8 : -0.8));
    const double toBranch = kind < 2 ? 1.5 - diagonal : -9.0;
    const double centre = std::sqrt(cell.u * cell.u + cell.v * cell.v);
    const double fromPad = kind == 3 ? centre : std::sqrt(au * au + av * av);
    const double toPad = 6.0 - std::fmin(fromPad, std::sqrt(au * au + av * av));
    const double toTrace = std::fmax(std::fmax(toPad, toBranch), -cell.toEdge);
    const double toChip = kind == 2 ? toRoundedEdge(cell.u, cell.v, 22.0, 15.0, 2.0) : -9.0;
    const Colour mint = lerp(srgb(0x98f0c4), srgb(0xc0fad8), hash01(cell.column, cell.row, 61));
    const Colour board = lerp(mint, srgb(0x48b894), smoothstep(-0.4, 0.4, toChip));
    const Colour metal = lerp(srgb(0xc87840), srgb(0xffd878), smoothstep(-0.4, 0.4, toPad));
    const Colour drilled = lerp(metal, srgb(0x50301c), smoothstep(3.6, 4.2, toPad));
    return {lerp(board, drilled, smoothstep(-0.4, 0.4, toTrace)),
            rounded(toTrace, 1.8, 2.0) + rounded(toChip, 2.0, 2.5)};
}

Spot lavaPattern(double x, double y) {
    const VoronoiCell plate = roughCell({tileWidth, tileLength, 5, 4}, x, y, 8.0, 843);
    const double crust = grainAt(x, y, 840);
    const Colour amber = lerp(srgb(0xffe060), srgb(0xffdcb4), plate.tone) * (0.85 + 0.3 * crust);
    const double toEdge = plate.toEdge - 1.1;
    const double glow = exponential(-std::fmax(toEdge, 0.0) / 2.0);
    return set(lerp(amber, srgb(0xff6820), glow), srgb(0xb02030), toEdge,
               rounded(toEdge, 6.0, 3.0) + 0.8 * crust);
}

Spot discoPattern(double x, double y) {
    constexpr std::uint32_t hues[] = {0xff70b0, 0x48d0f8, 0xecb830, 0xa894ff, 0x60e078, 0xff8c50};
    const Cell cell = cellAt(x, y, 4, 4, 3.0, 5.0, false);
    const Colour hue =
        srgb(hues[(cell.column * 4 + cell.row * 7 + cell.column / 2 + cell.row / 3) % 6]);
    const double from = std::sqrt(cell.u * cell.u * 0.5625 + cell.v * cell.v);
    const Colour lit = lerp(lerp(hue, srgb(0xffffff), 0.6), hue, smoothstep(0.0, 15.0, from));
    return set(lit, srgb(0x281c58), cell.toEdge, rounded(cell.toEdge, 3.5, 2.0));
}

Spot candyPattern(double x, double y) {
    const Cell cell = cellAt(x + halfColumn, y + halfRow, 4, 4, 1.2, 8.0, false);
    const bool sweet = ((cell.column + cell.row) & 1) != 0;
    const double turn = angleOf(cell.u * 0.75, cell.v) / (2.0 * pi);
    const double from = std::sqrt(cell.u * cell.u * 0.5625 + cell.v * cell.v);
    const double swirl = fraction(turn * 5.0 + from / 26.0);
    const Colour striped = swirl < 0.5 ? srgb(0xff6ca8) : srgb(0xffd4e6);
    const Colour plain = srgb(0xfff0f4);
    return set(sweet ? striped : plain, srgb(0x9038a0), cell.toEdge,
               rounded(cell.toEdge, 11.0, 6.0));
}
