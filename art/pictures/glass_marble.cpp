#include "art/pictures/glass_marble.h"

#include <algorithm>
#include <cmath>

#include "art/common/portable_math.h"
#include "art/pictures/sky.h"

namespace {

constexpr double refractiveIndex = 1.5; // of glass
constexpr int ribbonCount = 4;

// Returns the direction after refraction at a surface; `ratio` is the refractive index before it
// divided by the one after it. Total internal reflection gives the reflected direction.
Vector3 refract(const Vector3& direction, const Vector3& normal, double ratio) {
    const double cosine = -static_cast<double>(dot(direction, normal));
    const double rest = 1.0 - ratio * ratio * (1.0 - cosine * cosine);
    if (rest < 0.0) { return reflect(direction, normal); }
    return (direction * static_cast<float>(ratio) +
            normal * static_cast<float>(ratio * cosine - std::sqrt(rest)))
        .unit();
}

struct RibbonSample {
    double density;
    int ribbon;
};

// Samples the ribbons at a point of the unit ball: u and v across the axis, w along it.
RibbonSample sampleRibbons(double u, double v, double w) {
    constexpr double twist = 4.2;        // radians from pole to pole
    constexpr double swirlRadius = 0.60; // at the equator
    const double outward = std::sqrt(u * u + v * v);
    const double reach = swirlRadius * std::sqrt(std::max(0.0, 1.0 - w * w));
    if (outward > reach) { return {0.0, 0}; }
    const double turn = angleOf(u, v) + twist * w + 1.1 * outward;
    const double sector = turn / (2.0 * pi) * ribbonCount;
    const double nearest = std::floor(sector + 0.5);
    const double aside = std::fabs(sector - nearest) * 2.0 * pi / ribbonCount * outward;
    const double thickness = 0.07 * smoothstep(reach, 0.8 * reach, outward) + 0.015;
    const int index = (static_cast<int>(nearest) % ribbonCount + ribbonCount) % ribbonCount;
    return {1.0 - smoothstep(0.2 * thickness, thickness, aside), index};
}

// Adds the light of the ribbons along a path from `point`. Returns the share of light that passes
// them.
double marchThroughRibbons(const GlassMarble& marble, const Vector3& point,
                           const Vector3& direction, double length, Colour& light) {
    constexpr int steps = 128;
    constexpr double extinction = 60.0; // of a ribbon, for each radius of length
    const Colour white = srgb(0xfff4e0);
    const Vector3 across = cross(marble.axis, Vector3(0, 0, 1)).unit();
    const Vector3 third = cross(marble.axis, across);
    const double step = length / steps / marble.radius;
    double transmittance = 1.0;
    for (int i = 0; i < steps; ++i) {
        const auto way = static_cast<float>((i + 0.5) * length / steps);
        const Vector3 p =
            (point + direction * way - marble.centre) * static_cast<float>(1.0 / marble.radius);
        const RibbonSample sample =
            sampleRibbons(dot(p, across), dot(p, third), dot(p, marble.axis));
        if (sample.density > 0.0) {
            const double opacity = 1.0 - exponential(-extinction * sample.density * step);
            const double lit = 0.35 + 0.75 * clamp01(0.5 + 0.6 * dot(p, sunDirection));
            const Colour& paint = sample.ribbon % 2 == 0 ? marble.ribbon : white;
            light = light + paint * (lit * opacity * transmittance);
            transmittance *= 1.0 - opacity;
        }
    }
    return transmittance;
}

} // namespace

double GlassMarble::hit(const Ray& ray) const {
    const Vector3 to = centre - ray.origin;
    const double along = dot(to, ray.direction);
    const double square = static_cast<double>(dot(to, to)) - along * along;
    const double half = radius * radius - square;
    const double entry = half < 0.0 ? -1.0 : along - std::sqrt(half);
    return entry > 0.01 ? entry : -1.0;
}

GlassPath GlassMarble::refractThrough(const Vector3& point, const Vector3& direction) const {
    const Vector3 inside = refract(direction, (point - centre).unit(), 1.0 / refractiveIndex);
    const double length = -2.0 * dot(point - centre, inside);
    GlassPath path{point + inside * static_cast<float>(length), {}, {}, {}};
    const double open = marchThroughRibbons(*this, point, inside, length, path.ribbonLight);
    const double diameters = length / (2.0 * radius);
    const auto after = [&](float shareOfDiameter) {
        return static_cast<float>(open * power(shareOfDiameter, diameters));
    };
    const Colour glass = srgb(0xd8f4ff); // transmitted by one diameter of glass
    path.transmittance = {after(glass.red), after(glass.green), after(glass.blue)};
    path.direction = refract(inside, (centre - path.exit).unit(), refractiveIndex);
    return path;
}

double fresnelReflectance(double cosine) {
    constexpr double atNormalIncidence = 0.04;
    const double rest = 1.0 - clamp01(cosine);
    const double square = rest * rest;
    return atNormalIncidence + (1.0 - atNormalIncidence) * square * square * rest;
}
