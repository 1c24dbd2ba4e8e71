#include "art/pictures/sky.h"

#include <cmath>

#include "art/common/portable_math.h"
#include "art/pictures/noise.h"

namespace {

// Returns how much of the light from a direction above the horizon is that of clouds: banks that
// are flat below and heaped above.
double cloudShare(const Vector3& direction, double cover) {
    if (direction.y <= 0.0F) { return 0.0; }
    constexpr Lattice puffs{4.0, 4.0, 8, 20};
    const double across = direction.x / direction.y;
    const double up = direction.z / direction.y;
    const double heap = fractalNoise(puffs, across + 2.0, up + 1.0, 77);
    return cover * smoothstep(0.46, 0.74, heap);
}

// Returns the share of the glow, whose middle is wide and even, in the light from a direction.
double glowIn(const Vector3& direction) {
    if (direction.y <= 0.0F) { return 0.0; }
    const double across = direction.x / direction.y / 0.52;
    const double rise = direction.z / direction.y - 0.13;
    const double up = rise / (rise > 0.0 ? 0.38 : 0.62);
    return 1.0 - smoothstep(0.85, 1.5, std::sqrt(across * across + up * up));
}

} // namespace

Colour Sky::lightFrom(const Vector3& direction) const {
    if (direction.z < 0.0F) { return hazeFrom(direction); }
    const double up = direction.z;
    const Colour low = lerp(horizon, middle, smoothstep(0.0, 0.25, up));
    const Colour clear = lerp(low, zenith, smoothstep(0.15, 0.7, up));
    const Colour sky = lerp(clear, srgb(0xffffff), cloudShare(direction, cloudCover));
    return lerp(sky, glow, glowShare * glowIn(direction));
}

Colour Sky::hazeFrom(const Vector3& direction) const {
    return lerp(haze, glow, glowShare * glowIn(direction));
}

double Sky::transmittance(double distance) const {
    const double share = distance / hazeLength;
    return exponential(-share * share);
}
