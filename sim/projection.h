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

// A world point in view coordinates.
inline Vector3 toView(const ViewFrame& view, const Vector3& point) {
    return view.getRotation() * (point - view.getPosition());
}
