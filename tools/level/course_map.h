// The map of a course: the loaded level seen from above, in two strips. Play goes from left to
// right, the first half in the upper strip, the second half in the lower one; the player's left is
// up. One pixel is 6 world units.
//
// Colours show the height (dark green is low, white is high), with light from the upper left and
// contour lines at equal steps of height. Red discs are the catch circles of wells, small rings the
// spots to which wells put the marble back, the green bar is the start, the chequered bar the goal.
// Ticks at the edge are 1000 units apart.
#pragma once

#include <vector>

#include "sim/level.h"
#include "sim/vector.h"
#include "tools/level/picture.h"

// A point of a driven line, in world units.
struct LinePoint {
    float x;
    float y;
    bool turbo;  // turbo was held
    bool caught; // the marble was put back from here
};

// Draws the map; the line may be empty.
Picture drawCourseMap(const Level& course, const std::vector<Vector3>& returnSpots,
                      const std::vector<LinePoint>& line);
