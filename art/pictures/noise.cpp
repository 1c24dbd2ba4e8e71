#include "art/pictures/noise.h"

#include <cmath>

#include "art/pictures/portable_math.h"

namespace {

int wrapped(int index, int count) {
    return (index % count + count) % count;
}

double latticeChance(const Lattice& lattice, int x, int y, std::uint32_t seed) {
    return chance(wrapped(x, lattice.across), wrapped(y, lattice.along), seed);
}

struct Centre {
    double x;
    double y;
    double tone;
};

Centre centreOf(const Lattice& lattice, int i, int j, double scatter, std::uint32_t seed) {
    const double sx = (latticeChance(lattice, i, j, seed) - 0.5) * scatter + 0.5;
    const double sy = (latticeChance(lattice, i, j, seed + 1) - 0.5) * scatter + 0.5;
    return {(i + sx) * lattice.width / lattice.across, (j + sy) * lattice.height / lattice.along,
            latticeChance(lattice, i, j, seed + 2)};
}

constexpr int reach = 2; // lattice cells around a point whose centres may matter

} // namespace

double chance(int x, int y, std::uint32_t seed) {
    std::uint32_t h = static_cast<std::uint32_t>(x) * 0x9e3779b1U;
    h = (h ^ (h >> 15)) + static_cast<std::uint32_t>(y) * 0x85ebca77U;
    h = (h ^ (h >> 13)) * 0xc2b2ae3dU + seed * 0x27d4eb2fU;
    h = (h ^ (h >> 16)) * 0x7feb352dU;
    h = (h ^ (h >> 15)) * 0x846ca68bU;
    return static_cast<double>((h ^ (h >> 16)) >> 8) / 16777216.0;
}

double smoothNoise(const Lattice& lattice, double x, double y, std::uint32_t seed) {
    const double u = x / lattice.width * lattice.across;
    const double v = y / lattice.height * lattice.along;
    const double column = std::floor(u);
    const double row = std::floor(v);
    const int i = static_cast<int>(column);
    const int j = static_cast<int>(row);
    const double fu = smoothStep(0.0, 1.0, u - column);
    const double fv = smoothStep(0.0, 1.0, v - row);
    return mix(
        mix(latticeChance(lattice, i, j, seed), latticeChance(lattice, i + 1, j, seed), fu),
        mix(latticeChance(lattice, i, j + 1, seed), latticeChance(lattice, i + 1, j + 1, seed), fu),
        fv);
}

double cloudNoise(const Lattice& lattice, double x, double y, std::uint32_t seed) {
    Lattice octave = lattice;
    double sum = 0.0;
    double strength = 8.0 / 15.0;
    for (std::uint32_t i = 0; i < 4; ++i) {
        sum += strength * smoothNoise(octave, x, y, seed + i);
        strength *= 0.5;
        octave.across *= 2;
        octave.along *= 2;
    }
    return sum;
}

CellSpot cellAt(const Lattice& lattice, double x, double y, double scatter, std::uint32_t seed) {
    const int i0 = static_cast<int>(std::floor(x / lattice.width * lattice.across));
    const int j0 = static_cast<int>(std::floor(y / lattice.height * lattice.along));
    Centre own{};
    double nearest = 1e18;
    for (int j = j0 - reach; j <= j0 + reach; ++j) {
        for (int i = i0 - reach; i <= i0 + reach; ++i) {
            const Centre c = centreOf(lattice, i, j, scatter, seed);
            const double square = (c.x - x) * (c.x - x) + (c.y - y) * (c.y - y);
            if (square >= nearest) continue;
            nearest = square;
            own = c;
        }
    }
    double toEdge = 1e9;
    for (int j = j0 - reach; j <= j0 + reach; ++j) {
        for (int i = i0 - reach; i <= i0 + reach; ++i) {
            const Centre c = centreOf(lattice, i, j, scatter, seed);
            const double nx = c.x - own.x;
            const double ny = c.y - own.y;
            const double apart = std::sqrt(nx * nx + ny * ny);
            if (apart < 1e-6) continue;
            const double mx = 0.5 * (c.x + own.x) - x;
            const double my = 0.5 * (c.y + own.y) - y;
            const double d = (mx * nx + my * ny) / apart;
            if (d < toEdge) toEdge = d;
        }
    }
    return {toEdge, std::sqrt(nearest), x - own.x, y - own.y, own.tone};
}
