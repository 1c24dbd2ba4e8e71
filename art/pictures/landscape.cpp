#include "art/pictures/landscape.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "art/pictures/portable_math.h"

namespace {

constexpr double spacing = 10.0; // between heights, world units
constexpr double firstX = -2500.0;
constexpr double firstY = -1000.0;
constexpr int columns = 501;
constexpr int rows = 601;

constexpr double slopeStep = 2.0;     // world units, for normals
constexpr double hollowReach = 70.0;  // around a point, to see whether it lies low
constexpr double shadowReach = 900.0; // how far away a mound may be that throws a shadow

// The three weights of a quadratic spline around its nearest lattice line; `t` is -0.5..0.5.
struct SplineWeights {
    double w[3];
    explicit SplineWeights(double t)
        : w{0.5 * (0.5 - t) * (0.5 - t), 0.75 - t * t, 0.5 * (0.5 + t) * (0.5 + t)} {}
};

Vector3 along(const Vector3& eye, const Vector3& direction, double distance) {
    return eye + direction * static_cast<float>(distance);
}

} // namespace

Landscape::Landscape(std::span<const Hole> holes) : highest(-1e9) {
    const auto ground = std::make_unique<Level>();
    ground->holeCount = static_cast<std::int32_t>(holes.size());
    ground->holes = std::make_unique<Hole[]>(holes.size());
    std::copy(holes.begin(), holes.end(), ground->holes.get());
    heights.reserve(static_cast<std::size_t>(columns) * rows);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const auto x = static_cast<float>(firstX + column * spacing);
            const auto y = static_cast<float>(firstY + row * spacing);
            heights.push_back(-static_cast<double>(ground->heightAt(x, y)));
            highest = std::max(highest, heights.back());
        }
    }
}

double Landscape::latticeHeight(int column, int row) const {
    const int c = std::clamp(column, 0, columns - 1);
    const int r = std::clamp(row, 0, rows - 1);
    return heights[static_cast<std::size_t>(r * columns + c)];
}

double Landscape::heightAt(double x, double y) const {
    const double u = (x - firstX) / spacing;
    const double v = (y - firstY) / spacing;
    const double column = std::floor(u + 0.5);
    const double row = std::floor(v + 0.5);
    const SplineWeights across(u - column);
    const SplineWeights ahead(v - row);
    double sum = 0.0;
    for (int j = 0; j < 3; ++j) {
        for (int i = 0; i < 3; ++i) {
            sum += across.w[i] * ahead.w[j] *
                   latticeHeight(static_cast<int>(column) + i - 1, static_cast<int>(row) + j - 1);
        }
    }
    return sum;
}

Vector3 Landscape::normalAt(double x, double y) const {
    const double dx = heightAt(x - slopeStep, y) - heightAt(x + slopeStep, y);
    const double dy = heightAt(x, y - slopeStep) - heightAt(x, y + slopeStep);
    return Vector3(static_cast<float>(dx), static_cast<float>(dy),
                   static_cast<float>(2.0 * slopeStep))
        .unit();
}

double Landscape::opennessAt(double x, double y) const {
    const double around = heightAt(x - hollowReach, y) + heightAt(x + hollowReach, y) +
                          heightAt(x, y - hollowReach) + heightAt(x, y + hollowReach);
    const double below = 0.25 * around - heightAt(x, y);
    return std::clamp(1.0 - 0.9 * below / hollowReach, 0.25, 1.15);
}

double Landscape::hit(const Vector3& eye, const Vector3& direction, double limit) const {
    const auto clearance = [&](double distance) {
        const Vector3 p = along(eye, direction, distance);
        return static_cast<double>(p.z) - heightAt(p.x, p.y);
    };
    double before = 0.0;
    double at = 0.0;
    double above = clearance(at);
    while (above > 0.0) {
        if (at > limit) return -1.0;
        if (direction.z > 0.0F && along(eye, direction, at).z > highest) return -1.0;
        before = at;
        at += std::max(0.4 * above, 0.5 + 0.0015 * at);
        above = clearance(at);
    }
    for (int i = 0; i < 10; ++i) {
        const double middle = 0.5 * (before + at);
        (clearance(middle) > 0.0 ? before : at) = middle;
    }
    return at;
}

double Landscape::sunAt(const Vector3& point, const Vector3& towards) const {
    double lightest = 1.0;
    double distance = 4.0;
    while (distance < shadowReach && lightest > 0.0) {
        const Vector3 p = along(point, towards, distance);
        if (p.z > highest) break;
        const double above = p.z - heightAt(p.x, p.y);
        lightest = std::min(lightest, 0.5 + 7.0 * above / distance);
        distance += std::max(5.0, 0.6 * above);
    }
    return smoothStep(0.0, 1.0, lightest);
}
