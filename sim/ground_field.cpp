#include "sim/level.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// The formulas measure lengths in spacings of the ground mesh; results are in world units again.
constexpr double unitsPerSpacing = groundSpacing;

constexpr Vector3 straightDown(0.0F, 0.0F, 1.0F);

float spacings(float units) {
    return static_cast<float>(units * spacingsPerUnit);
}

// Returns the squared distance of a point, in spacings, from a hole's centre, in spacings squared.
double squaredDistance(const Hole& hole, float xs, float ys) {
    const double dx = xs - hole.x * spacingsPerUnit;
    const float dy = static_cast<float>(ys - hole.y * spacingsPerUnit);
    return dx * dx + static_cast<double>(dy) * dy;
}

} // namespace

float Level::heightAt(float x, float y) const {
    const float xs = spacings(x);
    const float ys = spacings(y);
    double sum = 0.0;
    for (const Hole& hole : allHoles()) {
        const float w = spacings(hole.width);
        const double r = std::sqrt(squaredDistance(hole, xs, ys) + static_cast<double>(w) * w);
        sum += static_cast<double>(w) * hole.depth / r;
    }
    return static_cast<float>(sum);
}

// The loop over the points has nothing to carry from one to the next, so compilers compute several
// at once. Each sum still adds its terms in the order of the holes.
void Level::heightsAlong(float x, std::span<const float> ys, std::span<float> heights) const {
    const std::size_t count = ys.size();
    const float xs = spacings(x);
    std::array<float, groundRows> along = {};
    std::array<double, groundRows> sums = {};
    std::transform(ys.begin(), ys.end(), along.begin(), spacings);
    for (const Hole& hole : allHoles()) {
        const float w = spacings(hole.width);
        const double squaredWidth = static_cast<double>(w) * w;
        const double scaledDepth = static_cast<double>(w) * hole.depth;
        for (std::size_t i = 0; i < count; ++i) {
            sums[i] += scaledDepth / std::sqrt(squaredDistance(hole, xs, along[i]) + squaredWidth);
        }
    }
    std::transform(sums.begin(), sums.begin() + count, heights.begin(),
                   [](double sum) { return static_cast<float>(sum); });
}

float Level::holeAt(float x, float y) const {
    const float xs = spacings(x);
    const float ys = spacings(y);
    float nearest = 100000.0F;
    for (const Hole& hole : allHoles()) {
        if (!(hole.depth > 0.0F)) { continue; }
        const float w = spacings(hole.width);
        const double d = std::sqrt(squaredDistance(hole, xs, ys));
        if (d * unitsPerSpacing < nearest) { nearest = static_cast<float>(d * unitsPerSpacing); }
        if (d <= catchRadiusInWidths * w) { return static_cast<float>(w * unitsPerSpacing); }
    }
    return nearest < nearHole ? -1.0F : 0.0F;
}

Vector3 Level::normalAt(float x, float y) const {
    const Vector3 here(x, y, heightAt(x, y));
    const Vector3 ahead(x, y + 1.0F, heightAt(x, y + 1.0F));
    const Vector3 left(x - 1.0F, y, heightAt(x - 1.0F, y));
    return cross(here - left, here - ahead).unit();
}

Vector3 Level::downhillAt(float x, float y) const {
    return (normalAt(x, y) + straightDown).unit();
}

Vector3 Level::tangentXAt(float x, float y) const {
    const Vector3 here(x, y, heightAt(x, y));
    const Vector3 right(x + 1.0F, y, heightAt(x + 1.0F, y));
    return (right - here).unit();
}

Vector3 Level::tangentYAt(float x, float y) const {
    const Vector3 here(x, y, heightAt(x, y));
    const Vector3 ahead(x, y + 1.0F, heightAt(x, y + 1.0F));
    return (ahead - here).unit();
}
