// The map of a course: the loaded level seen from above, in two strips. Play goes from left to
// right, the first half in the upper strip, the second half in the lower one; the player's left is
// up. One pixel is 6 world units.
//
// Colours tell the height (dark green low, white high) and light falls from the upper left; a
// contour stands every few units, evenly spaced. Red discs are wells within their catch radius,
// small rings the spots to which wells put the marble back, the green bar is the start, the
// chequered bar the goal. Ticks at the edge stand 1000 units apart.
#pragma once

#include <vector>

#include "sim/level.h"
#include "sim/vector.h"
#include "tools/level/picture.h"

// A place of a driven line.
struct LinePoint {
    float x;
    float y;
    bool turbo;  // turbo was held there
    bool caught; // the marble was put back from there
};

// Draws the map; the line may be empty.
Picture drawCourseMap(const Level& course, const std::vector<Vector3>& returnSpots,
                      const std::vector<LinePoint>& line);
