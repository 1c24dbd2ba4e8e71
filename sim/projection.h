// From the world to the screen, for the marble, its arrows and the penalty label. The ground has
// factors of its own (render/ground_walk.h).
#pragma once

#include "sim/view_frame.h"

inline constexpr double focalLength = 400.0; // pixels

// Returns a world point in view coordinates (sim/view_frame.h), computed in double precision.
inline Vector3 toView(const ViewFrame& view, const Vector3& point) {
    const Matrix3 rotation = view.getRotation();
    const Vector3 eye = view.getPosition();
    const double x = static_cast<double>(point.x) - eye.x;
    const double y = static_cast<double>(point.y) - eye.y;
    const double z = static_cast<double>(point.z) - eye.z;
    const auto row = [&](int r) {
        return static_cast<float>(rotation.at(r, 0) * x + rotation.at(r, 1) * y +
                                  rotation.at(r, 2) * z);
    };
    return {row(0), row(1), row(2)};
}
