// The arrows of the ground's normal and slope, which Marble::draw (sim/marble.h) draws.
#pragma once

#include "sim/vector.h"

// Draws a yellow arrow between two points of the screen: x in pixels from the left, y in pixels
// from the bottom, z the depth along the line of sight. Leaves blending on and fog off.
void drawArrow(const Vector3& from, const Vector3& to);
