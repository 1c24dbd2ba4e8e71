#include "art/pictures/sign.h"

#include <algorithm>
#include <cmath>

#include "art/pictures/letter_shapes.h"
#include "art/pictures/strokes.h"

namespace {

constexpr double capitalHeight = 21.0; // between stroke centres
constexpr double margin = 8.0;         // glyph pixels around the word in which distances are known
constexpr double cellsPerPixel = 5.0;  // of the grid of distances

Skeleton skeletonAt(const LetterShape& shape, double left) {
    Skeleton skeleton = skeletonOf(shape.path);
    for (StrokePiece& piece : skeleton) {
        piece.from.x += left;
        piece.to.x += left;
        piece.radius = 0.0;
    }
    return skeleton;
}

} // namespace

Sign::Sign(std::string_view word, const Vector3& foot, double scale, double radius, double tracking)
    : origin(foot), unit(scale), tube(radius * scale) {
    Skeleton skeleton;
    double width = 0.0;
    for (const char character : word) {
        const LetterShape& shape = letterShape(character);
        const Skeleton letter = skeletonAt(shape, width);
        skeleton.insert(skeleton.end(), letter.begin(), letter.end());
        letterMiddles.push_back(width + 0.5 * shape.width);
        width += shape.width + tracking;
    }
    width -= tracking;
    origin.x -= static_cast<float>(0.5 * width * scale);
    gridWidth = static_cast<int>((width + 2.0 * margin) * cellsPerPixel);
    gridHeight = static_cast<int>((capitalHeight + 2.0 * margin) * cellsPerPixel);
    for (int j = 0; j < gridHeight; ++j) {
        for (int i = 0; i < gridWidth; ++i)
            grid.push_back(
                distanceToInk(skeleton, {i / cellsPerPixel - margin, j / cellsPerPixel - margin}));
    }
}

double Sign::toSkeleton(double x, double z) const {
    const double u = std::clamp((x + margin) * cellsPerPixel, 0.0, gridWidth - 1.001);
    const double v = std::clamp((z + margin) * cellsPerPixel, 0.0, gridHeight - 1.001);
    const int i = static_cast<int>(u);
    const int j = static_cast<int>(v);
    const double fu = u - i;
    const double fv = v - j;
    const double* lower = &grid[static_cast<std::size_t>(j * gridWidth + i)];
    const double* upper = lower + gridWidth;
    return (lower[0] * (1.0 - fu) + lower[1] * fu) * (1.0 - fv) +
           (upper[0] * (1.0 - fu) + upper[1] * fu) * fv;
}

double Sign::distanceTo(const Vector3& point) const {
    const Vector3 p = point - origin;
    const double flat = toSkeleton(p.x / unit, p.z / unit) * unit;
    return std::sqrt(flat * flat + static_cast<double>(p.y) * p.y) - tube;
}

double Sign::hit(const Vector3& eye, const Vector3& direction) const {
    if (direction.y == 0.0F) return -1.0;
    const double toFront = (origin.y - tube - eye.y) / direction.y;
    const double toBack = (origin.y + tube - eye.y) / direction.y;
    double at = std::max(0.0, std::min(toFront, toBack));
    const double end = std::max(toFront, toBack);
    const double touch = 0.002 * tube;
    while (at <= end) {
        const double distance = distanceTo(eye + direction * static_cast<float>(at));
        if (distance < touch) return at;
        at += distance;
    }
    return -1.0;
}

Vector3 Sign::normalAt(const Vector3& point) const {
    const auto step = static_cast<float>(0.2 * unit);
    const auto slope = [&](const Vector3& offset) {
        return static_cast<float>(distanceTo(point + offset) - distanceTo(point - offset));
    };
    return Vector3(slope({step, 0, 0}), slope({0, step, 0}), slope({0, 0, step})).unit();
}

double Sign::levelOf(const Vector3& point) const {
    return (static_cast<double>(point.z) - origin.z) / (capitalHeight * unit);
}

Vector3 Sign::middleOf(int index) const {
    const double x = letterMiddles[static_cast<std::size_t>(index)] * unit;
    return origin +
           Vector3(static_cast<float>(x), 0.0F, static_cast<float>(0.5 * capitalHeight * unit));
}
