#include "art/pictures/sky.h"

#include <cmath>

#include "art/common/portable_math.h"
#include "art/common/random.h"

Colour Sky::lightFrom(const Vector3& direction) const {
    if (direction.z < 0.0F) { return haze; }
    const double up = direction.z;
    const Colour low = lerp(horizon, middle, smoothstep(-0.02, 0.16, up));
    const Colour sky = lerp(low, zenith, smoothstep(0.10, 0.45, up));
    const double aside = direction.x * direction.x;
    const double ahead = direction.y > 0.0F ? 1.0 : 0.0;
    return sky + glow * (ahead * exponential(-aside * 6.0) * exponential(-up * 16.0));
}

double Sky::transmittance(double distance) const {
    const double share = distance / hazeLength;
    return exponential(-share * share);
}

Colour starlight(const Vector3& direction) {
    constexpr double cellsPerUnit = 150.0; // of direction, at a distance of 1
    constexpr double starsPerCell = 0.06;
    if (direction.y <= 0.0F) { return {}; }
    const double u = direction.x / direction.y * cellsPerUnit;
    const double v = direction.z / direction.y * cellsPerUnit;
    const int i = static_cast<int>(std::floor(u));
    const int j = static_cast<int>(std::floor(v));
    if (hash01(i, j, 1) > starsPerCell) { return {}; }
    const double dx = u - i - lerp(0.3, 0.7, hash01(i, j, 2));
    const double dy = v - j - lerp(0.3, 0.7, hash01(i, j, 3));
    const double size = lerp(0.07, 0.22, power(hash01(i, j, 4), 3.0));
    const double shine = exponential(-(dx * dx + dy * dy) / (size * size));
    return srgb(0xfff0e0) * (shine * smoothstep(0.08, 0.3, direction.z));
}
