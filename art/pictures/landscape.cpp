#include "art/pictures/landscape.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "art/common/portable_math.h"
#include "art/pictures/sky.h"

namespace {

// The lattice of heights, in world units.
constexpr double spacing = 10.0;
constexpr double firstX = -2500.0;
constexpr double firstY = -1000.0;
constexpr int columns = 501;
constexpr int rows = 601;

// The weights of a quadratic spline for the three nearest lattice lines; `t` is -0.5..0.5.
struct SplineWeights {
    double w[3];
    explicit SplineWeights(double t)
        : w{0.5 * (0.5 - t) * (0.5 - t), 0.75 - t * t, 0.5 * (0.5 + t) * (0.5 + t)} {}
};

} // namespace

Landscape::Landscape(std::span<const Hole> holes) : heights(columns, rows), highest(-1e9) {
    const auto ground = std::make_unique<Level>();
    ground->holeCount = static_cast<std::int32_t>(holes.size());
    ground->holes = std::make_unique<Hole[]>(holes.size());
    std::copy(holes.begin(), holes.end(), ground->holes.get());
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const auto x = static_cast<float>(firstX + column * spacing);
            const auto y = static_cast<float>(firstY + row * spacing);
            heights.at(column, row) = -static_cast<double>(ground->heightAt(x, y));
            highest = std::max(highest, heights.at(column, row));
        }
    }
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
            const int c = std::clamp(static_cast<int>(column) + i - 1, 0, columns - 1);
            const int r = std::clamp(static_cast<int>(row) + j - 1, 0, rows - 1);
            sum += across.w[i] * ahead.w[j] * heights.at(c, r);
        }
    }
    return sum;
}

Vector3 Landscape::normalAt(double x, double y) const {
    constexpr double step = 2.0;
    const double dx = heightAt(x - step, y) - heightAt(x + step, y);
    const double dy = heightAt(x, y - step) - heightAt(x, y + step);
    return Vector3(static_cast<float>(dx), static_cast<float>(dy), static_cast<float>(2.0 * step))
        .unit();
}

double Landscape::ambientOcclusion(double x, double y) const {
    constexpr double reach = 70.0; // around the point whose height is compared
    const double around = heightAt(x - reach, y) + heightAt(x + reach, y) + heightAt(x, y - reach) +
                          heightAt(x, y + reach);
    const double below = 0.25 * around - heightAt(x, y);
    return std::clamp(1.0 - 0.9 * below / reach, 0.25, 1.15);
}

double Landscape::hit(const Ray& ray, double limit) const {
    const auto clearance = [&](double distance) {
        const Vector3 p = ray.at(distance);
        return static_cast<double>(p.z) - heightAt(p.x, p.y);
    };
    double before = 0.0;
    double distance = 0.0;
    double above = clearance(distance);
    while (above > 0.0) {
        const bool leftTheGround = ray.direction.z > 0.0F && ray.at(distance).z > highest;
        if (distance > limit || leftTheGround) { return -1.0; }
        before = distance;
        distance += std::max(0.4 * above, 0.5 + 0.0015 * distance);
        above = clearance(distance);
    }
    for (int i = 0; i < 10; ++i) {
        const double middle = 0.5 * (before + distance);
        (clearance(middle) > 0.0 ? before : distance) = middle;
    }
    return distance;
}

double Landscape::sunlightAt(const Vector3& point) const {
    constexpr double reach = 900.0; // of the longest shadow
    double least = 1.0;
    double distance = 4.0;
    while (distance < reach && least > 0.0) {
        const Vector3 p = point + sunDirection * static_cast<float>(distance);
        if (p.z > highest) { break; }
        const double above = p.z - heightAt(p.x, p.y);
        least = std::min(least, 0.5 + 7.0 * above / distance);
        distance += std::max(5.0, 0.6 * above);
    }
    return smoothstep(0.0, 1.0, least);
}
