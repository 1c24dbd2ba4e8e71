// Noise and cells that repeat seamlessly with a tile. They depend only on their arguments.
#pragma once

#include <cstdint>

// A tile and the lattice that divides it; x runs over 0..width and wraps, y likewise.
struct Lattice {
    double width;
    double height;
    int columns;
    int rows;
};

// Returns four octaves of value noise, 0..1. The first has one value for each lattice cell; each
// next one has half the amplitude and twice the frequency.
double fractalNoise(const Lattice& lattice, double x, double y, std::uint32_t seed);

// The cell of a Voronoi diagram that holds a point. The diagram has one centre, at a random place,
// for each lattice cell. Lengths are those of the tile.
struct VoronoiCell {
    double toEdge; // distance to the border with the nearest neighbour
    double dx;     // from the centre
    double dy;
    double tone; // random, 0..1, one value for the whole cell
};

// Returns the cell at a point. `scatter` 0 puts each centre in the middle of its lattice cell, 1
// anywhere in it.
VoronoiCell voronoiCell(const Lattice& lattice, double x, double y, double scatter,
                        std::uint32_t seed);
