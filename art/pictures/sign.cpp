#include "art/pictures/sign.h"

#include <algorithm>
#include <cmath>

#include "art/pictures/typeface.h"

namespace {

constexpr double tracking = 1.0;      // glyph pixels added between letters
constexpr double margin = 8.0;        // glyph pixels around the word that the grid covers
constexpr double cellsPerPixel = 5.0; // of the grid of distances

// Returns the skeleton of a letter as lines without width.
Skeleton thinSkeleton(const LetterShape& shape, double left) {
    Skeleton skeleton = readSkeleton(shape.path);
    for (Stroke& stroke : skeleton) {
        stroke.from.x += left;
        stroke.to.x += left;
        stroke.radius = 0.0;
    }
    return skeleton;
}

Raster<double> distanceField(const Skeleton& skeleton, double width) {
    Raster<double> field(static_cast<int>((width + 2.0 * margin) * cellsPerPixel),
                         static_cast<int>((capitalHeight + 2.0 * margin) * cellsPerPixel));
    for (int j = 0; j < field.height; ++j) {
        for (int i = 0; i < field.width; ++i) {
            field.at(i, j) =
                signedDistance(skeleton, {i / cellsPerPixel - margin, j / cellsPerPixel - margin});
        }
    }
    return field;
}

double interpolate(const Raster<double>& field, double x, double y) {
    const double u = std::clamp((x + margin) * cellsPerPixel, 0.0, field.width - 1.001);
    const double v = std::clamp((y + margin) * cellsPerPixel, 0.0, field.height - 1.001);
    const int i = static_cast<int>(u);
    const int j = static_cast<int>(v);
    const auto alongRow = [&](int row) {
        return field.at(i, row) * (1.0 - (u - i)) + field.at(i + 1, row) * (u - i);
    };
    return alongRow(j) * (1.0 - (v - j)) + alongRow(j + 1) * (v - j);
}

} // namespace

Sign::Sign(std::string_view word, const Vector3& foot) : origin(foot), distances(0, 0) {
    Skeleton skeleton;
    double left = 0.0;
    for (const char character : word) {
        const LetterShape& shape = letterShape(character);
        const Skeleton letter = thinSkeleton(shape, left);
        skeleton.insert(skeleton.end(), letter.begin(), letter.end());
        letterMiddles.push_back(left + 0.5 * shape.width);
        left += shape.width + tracking;
    }
    const double width = left - tracking;
    origin.x -= static_cast<float>(0.5 * width * signScale);
    distances = distanceField(skeleton, width);
}

double Sign::signedDistance(const Vector3& point) const {
    const Vector3 p = point - origin;
    const double flat = interpolate(distances, p.x / signScale, p.z / signScale) * signScale;
    return std::sqrt(flat * flat + static_cast<double>(p.y) * p.y) - signTubeRadius;
}

double Sign::hit(const Ray& ray) const {
    if (ray.direction.y == 0.0F) { return -1.0; }
    const double toFront = (origin.y - signTubeRadius - ray.origin.y) / ray.direction.y;
    const double toBack = (origin.y + signTubeRadius - ray.origin.y) / ray.direction.y;
    double distance = std::max(0.0, std::min(toFront, toBack));
    while (distance <= std::max(toFront, toBack)) {
        const double free = signedDistance(ray.at(distance));
        if (free < 0.002 * signTubeRadius) { return distance; }
        distance += free;
    }
    return -1.0;
}

Vector3 Sign::normalAt(const Vector3& point) const {
    const auto step = static_cast<float>(0.2 * signScale);
    const auto slope = [&](const Vector3& offset) {
        return static_cast<float>(signedDistance(point + offset) - signedDistance(point - offset));
    };
    return Vector3(slope({step, 0, 0}), slope({0, step, 0}), slope({0, 0, step})).unit();
}

double Sign::levelOf(const Vector3& point) const {
    return (static_cast<double>(point.z) - origin.z) / (capitalHeight * signScale);
}

Vector3 Sign::middleOf(std::size_t index) const {
    const double x = letterMiddles[index] * signScale;
    return origin + Vector3(static_cast<float>(x), 0.0F,
                            static_cast<float>(0.5 * capitalHeight * signScale));
}
