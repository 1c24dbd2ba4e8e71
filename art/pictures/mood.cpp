#include "art/pictures/mood.h"

#include <cmath>

#include "art/pictures/noise.h"
#include "art/pictures/portable_math.h"

namespace {

constexpr double starCells = 150.0; // a unit of direction; at most one star in each cell

} // namespace

Colour skyIn(const Mood& mood, const Vector3& direction) {
    if (direction.z < 0.0F) return mood.haze;
    const double up = direction.z;
    const Colour low = mix(mood.horizon, mood.middle, smoothStep(-0.02, 0.16, up));
    const Colour sky = mix(low, mood.zenith, smoothStep(0.10, 0.45, up));
    const double aside = direction.x * direction.x;
    const double ahead = direction.y > 0.0F ? 1.0 : 0.0;
    return sky + mood.glow * (ahead * exponential(-aside * 6.0) * exponential(-up * 16.0));
}

Colour starsIn(const Mood& mood, const Vector3& direction) {
    if (mood.stars <= 0.0 || direction.y <= 0.0F) return {};
    const double u = direction.x / direction.y * starCells;
    const double v = direction.z / direction.y * starCells;
    const int i = static_cast<int>(std::floor(u));
    const int j = static_cast<int>(std::floor(v));
    if (chance(i, j, 1) > 0.06 * mood.stars) return {};
    const double dx = u - i - mix(0.3, 0.7, chance(i, j, 2));
    const double dy = v - j - mix(0.3, 0.7, chance(i, j, 3));
    const double size = mix(0.07, 0.22, power(chance(i, j, 4), 3.0));
    const double shine = exponential(-(dx * dx + dy * dy) / (size * size));
    return colourOf(0xfff0e0) * (shine * smoothStep(0.08, 0.3, direction.z));
}

double clearnessAt(const Mood& mood, double distance) {
    const double share = distance / mood.hazeLength;
    return exponential(-share * share);
}
