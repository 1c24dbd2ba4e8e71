// Noise and cells over a tile, which repeat seamlessly with it. All follow from their arguments.
#pragma once

#include <cstdint>

// A tile and the lattice that divides it; x runs over 0..width and wraps, y likewise.
struct Lattice {
    double width;
    double height;
    int columns;
    int rows;
};

// Returns four octaves of value noise, each half as strong and twice as fine as the one before:
// 0..1. The first has one value for each lattice cell.
double fractalNoise(const Lattice& lattice, double x, double y, std::uint32_t seed);

// The cell of a Voronoi diagram that holds a point. The diagram has one centre, at a random place,
// for each lattice cell. Lengths are those of the tile.
struct VoronoiCell {
    double toEdge; // distance to the border with the nearest neighbour
    double dx;     // from the centre
    double dy;
    double tone; // random, 0..1, one value for the whole cell
};

// `scatter` 0 puts the centres on the lattice, 1 anywhere in their lattice cell.
VoronoiCell voronoiCell(const Lattice& lattice, double x, double y, double scatter,
                        std::uint32_t seed);
