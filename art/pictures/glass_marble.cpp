#include "art/pictures/glass_marble.h"

#include <algorithm>
#include <cmath>

#include "art/pictures/portable_math.h"

namespace {

constexpr double refraction = 1.5; // index of glass
constexpr int stepsThrough = 128;  // samples of the ribbons along the way
constexpr int ribbonCount = 4;
constexpr double twist = 4.2;        // radians of winding from pole to pole, for a radius of 1
constexpr double swirlRadius = 0.60; // of the marble's
constexpr double ribbonDensity = 20.0;

// A ray bent where it passes a surface; `ratio` is the index left behind over the one entered.
// Light that would be held back inside goes on along the surface's mirror direction.
Vector3 refracted(const Vector3& direction, const Vector3& normal, double ratio) {
    const double cosine = -static_cast<double>(dot(direction, normal));
    const double rest = 1.0 - ratio * ratio * (1.0 - cosine * cosine);
    if (rest < 0.0) return reflected(direction, normal);
    return (direction * static_cast<float>(ratio) +
            normal * static_cast<float>(ratio * cosine - std::sqrt(rest)))
        .unit();
}

struct RibbonSpot {
    double density;
    int ribbon;
};

// How thick the ribbons are at a point of the unit ball, in the marble's own frame: u and v across
// the axis, w along it.
RibbonSpot ribbonAt(double u, double v, double w) {
    const double outward = std::sqrt(u * u + v * v);
    const double reach = swirlRadius * std::sqrt(std::max(0.0, 1.0 - w * w));
    if (outward > reach) return {0.0, 0};
    const double turn = angleOf(u, v) + twist * w + 1.1 * outward;
    const double sector = turn / (2.0 * pi) * ribbonCount;
    const double nearest = std::floor(sector + 0.5);
    const double aside = std::fabs(sector - nearest) * 2.0 * pi / ribbonCount * outward;
    const double thickness = 0.07 * smoothStep(reach, 0.8 * reach, outward) + 0.015;
    const int index = (static_cast<int>(nearest) % ribbonCount + ribbonCount) % ribbonCount;
    return {1.0 - smoothStep(0.2 * thickness, thickness, aside), index};
}

Vector3 anyAcross(const Vector3& axis) {
    const Vector3 helper = std::fabs(axis.z) < 0.9F ? Vector3(0, 0, 1) : Vector3(1, 0, 0);
    return cross(axis, helper).unit();
}

} // namespace

double hitMarble(const GlassMarble& marble, const Vector3& eye, const Vector3& direction) {
    const Vector3 to = marble.centre - eye;
    const double along = dot(to, direction);
    const double square = static_cast<double>(dot(to, to)) - along * along;
    const double half = marble.radius * marble.radius - square;
    if (half < 0.0) return -1.0;
    const double entry = along - std::sqrt(half);
    return entry > 0.01 ? entry : -1.0;
}

double mirrored(double cosine) {
    const double rest = 1.0 - clamp01(cosine);
    const double square = rest * rest;
    return 0.04 + 0.96 * square * square * rest;
}

Vector3 reflected(const Vector3& direction, const Vector3& normal) {
    return direction - normal * (2.0F * dot(direction, normal));
}

GlassPath throughMarble(const GlassMarble& marble, const Vector3& point, const Vector3& direction,
                        const Vector3& sun) {
    const Vector3 entryNormal = (point - marble.centre).unit();
    const Vector3 inside = refracted(direction, entryNormal, 1.0 / refraction);
    const double length = -2.0 * dot(point - marble.centre, inside);
    const Vector3 across = anyAcross(marble.axis);
    const Vector3 third = cross(marble.axis, across);
    const double step = length / stepsThrough / marble.radius;

    GlassPath path{point + inside * static_cast<float>(length), {}, {}, {1, 1, 1}};
    double open = 1.0;
    for (int i = 0; i < stepsThrough; ++i) {
        const auto way = static_cast<float>((i + 0.5) * length / stepsThrough);
        const Vector3 p =
            (point + inside * way - marble.centre) * static_cast<float>(1.0 / marble.radius);
        const RibbonSpot spot = ribbonAt(dot(p, across), dot(p, third), dot(p, marble.axis));
        if (spot.density <= 0.0) continue;
        const double covered = 1.0 - exponential(-ribbonDensity * spot.density * step * 3.0);
        const Colour paint = spot.ribbon % 2 == 0 ? marble.ribbon : marble.second;
        const double lit = 0.35 + 0.75 * clamp01(0.5 + 0.6 * dot(p, sun));
        path.ribbonLight = path.ribbonLight + paint * (lit * covered * open);
        open *= 1.0 - covered;
    }
    const double diameters = length / (2.0 * marble.radius);
    const auto left = [&](float share) {
        return static_cast<float>(open * power(share, diameters));
    };
    path.passing = {left(marble.glass.red), left(marble.glass.green), left(marble.glass.blue)};
    const Vector3 exitNormal = (marble.centre - path.exit).unit();
    path.direction = refracted(inside, exitNormal, refraction);
    return path;
}
