// From the world to the screen, for what is not ground: the marble, its arrows, the penalty label,
// the text. (The ground has factors of its own, render/ground.cpp.)
//
// The screen is 640 x 480 pixels; normalised device coordinates (NDC) run from -1 to 1 over it.
#pragma once

#include "sim/view_frame.h"

inline constexpr double focalLength = 400.0; // pixels

inline constexpr float screenCentreX = 320.0F; // pixels
inline constexpr float screenCentreY = 240.0F;

inline constexpr double ndcPerPixelX = 0.003125;             // 1 / 320
inline constexpr double ndcPerPixelY = 0.004166666666666667; // 1 / 240

// A world point in view coordinates, worked out in double precision.
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
