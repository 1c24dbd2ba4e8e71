#include "art/pictures/noise.h"

#include <cmath>

#include "art/common/portable_math.h"
#include "art/common/random.h"

namespace {

constexpr int reach = 2; // lattice cells around a point whose centres may be the nearest

int wrap(int index, int count) {
    return (index % count + count) % count;
}

double latticeHash(const Lattice& lattice, int x, int y, std::uint32_t seed) {
    return hash01(wrap(x, lattice.columns), wrap(y, lattice.rows), seed);
}

// Returns the smooth interpolation of one random value for each lattice point: 0..1.
double valueNoise(const Lattice& lattice, double x, double y, std::uint32_t seed) {
    const double u = x / lattice.width * lattice.columns;
    const double v = y / lattice.height * lattice.rows;
    const int i = static_cast<int>(std::floor(u));
    const int j = static_cast<int>(std::floor(v));
    const auto alongRow = [&](int row) {
        return lerp(latticeHash(lattice, i, row, seed), latticeHash(lattice, i + 1, row, seed),
                    smoothstep(0.0, 1.0, u - i));
    };
    return lerp(alongRow(j), alongRow(j + 1), smoothstep(0.0, 1.0, v - j));
}

struct Centre {
    double x;
    double y;
    double tone;
};

Centre centreOf(const Lattice& lattice, int i, int j, double scatter, std::uint32_t seed) {
    const double sx = (latticeHash(lattice, i, j, seed) - 0.5) * scatter + 0.5;
    const double sy = (latticeHash(lattice, i, j, seed + 1) - 0.5) * scatter + 0.5;
    return {(i + sx) * lattice.width / lattice.columns, (j + sy) * lattice.height / lattice.rows,
            latticeHash(lattice, i, j, seed + 2)};
}

// Returns the distance from a point in the cell of `own` to its border with the cell of `other`.
double distanceToBorder(const Centre& own, const Centre& other, double x, double y) {
    const double nx = other.x - own.x;
    const double ny = other.y - own.y;
    const double length = std::sqrt(nx * nx + ny * ny);
    const double mx = 0.5 * (other.x + own.x) - x;
    const double my = 0.5 * (other.y + own.y) - y;
    return length < 1e-6 ? 1e9 : (mx * nx + my * ny) / length;
}

} // namespace

double fractalNoise(const Lattice& lattice, double x, double y, std::uint32_t seed) {
    Lattice octave = lattice;
    double sum = 0.0;
    double strength = 8.0 / 15.0;
    for (std::uint32_t i = 0; i < 4; ++i) {
        sum += strength * valueNoise(octave, x, y, seed + i);
        strength *= 0.5;
        octave.columns *= 2;
        octave.rows *= 2;
    }
    return sum;
}

VoronoiCell voronoiCell(const Lattice& lattice, double x, double y, double scatter,
                        std::uint32_t seed) {
    const int i0 = static_cast<int>(std::floor(x / lattice.width * lattice.columns));
    const int j0 = static_cast<int>(std::floor(y / lattice.height * lattice.rows));
    const auto forEachCentre = [&](const auto& work) {
        for (int j = j0 - reach; j <= j0 + reach; ++j) {
            for (int i = i0 - reach; i <= i0 + reach; ++i) {
                work(centreOf(lattice, i, j, scatter, seed));
            }
        }
    };
    Centre own{};
    double nearest = 1e18;
    forEachCentre([&](const Centre& c) {
        const double square = (c.x - x) * (c.x - x) + (c.y - y) * (c.y - y);
        if (square < nearest) {
            nearest = square;
            own = c;
        }
    });
    double toEdge = 1e9;
    forEachCentre(
        [&](const Centre& c) { toEdge = std::fmin(toEdge, distanceToBorder(own, c, x, y)); });
    return {toEdge, x - own.x, y - own.y, own.tone};
}
