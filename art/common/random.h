// Pseudo-random numbers that depend only on their arguments: every run gives the same ones.
#pragma once

#include <cstdint>

// Returns a value 0..1 for a lattice point and a seed.
inline double hash01(int x, int y, std::uint32_t seed) {
    std::uint32_t h = static_cast<std::uint32_t>(x) * 0x9e3779b1U;
    h = (h ^ (h >> 15)) + static_cast<std::uint32_t>(y) * 0x85ebca77U;
    h = (h ^ (h >> 13)) * 0xc2b2ae3dU + seed * 0x27d4eb2fU;
    h = (h ^ (h >> 16)) * 0x7feb352dU;
    h = (h ^ (h >> 15)) * 0x846ca68bU;
    return static_cast<double>((h ^ (h >> 16)) >> 8) / 16777216.0;
}

// A sequence of random numbers: a linear congruential generator.
struct Random {
    std::uint32_t state; // starts as the seed

    // Returns the next number, uniform in -1.0..1.0.
    double next() {
        state = state * 1664525U + 1013904223U;
        return (state >> 8) / 8388608.0 - 1.0;
    }
};
