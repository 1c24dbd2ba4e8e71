// Chance that never changes: hashes, smooth noise and scattered cells that repeat with a tile.
//
// All answers depend on the arguments alone. Patterns repeat seamlessly: `across` and `along` say
// how many noise cells fit into a tile of the given size.
#pragma once

#include <cstdint>

// A value 0..1 for a lattice point and a seed.
double chance(int x, int y, std::uint32_t seed);

// A tile and the lattice that divides it; x in tile units runs 0..width and wraps, y likewise.
struct Lattice {
    double width;
    double height;
    int across;
    int along;
};

// Smooth value noise 0..1 with one value a lattice cell.
double smoothNoise(const Lattice& lattice, double x, double y, std::uint32_t seed);

// Four octaves of smoothNoise, each half as strong and twice as fine; 0..1.
double cloudNoise(const Lattice& lattice, double x, double y, std::uint32_t seed);

// Where a point lies among cells that grow around one scattered centre for each lattice cell.
struct CellSpot {
    double toEdge;   // distance to the border with the nearest neighbour, in tile units
    double toCentre; // distance to the own centre, in tile units
    double dx;       // from the own centre, in tile units
    double dy;
    double tone; // 0..1, the same within a cell
};

// `scatter` 0 puts the centres on the lattice, 1 anywhere in their lattice cell.
CellSpot cellAt(const Lattice& lattice, double x, double y, double scatter, std::uint32_t seed);
