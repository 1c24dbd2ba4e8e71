// The way to the goal as a field: for every place of the loaded level, the seconds that a marble
// needs on the best line, estimated from slopes and holes on the ground mesh. The estimate leaves
// out momentum and turbo.
#pragma once

#include <vector>

#include "sim/level.h"

inline constexpr float closeClearance =
    30.0F;                                    // world units, as close as the automatic driver dares
inline constexpr float safeClearance = 70.0F; // as people keep

struct Guide {
    std::vector<float> seconds; // to the goal, for every vertex of the ground mesh
    std::vector<float> climb;   // world units of its line to the goal that only turbo climbs
    std::vector<bool> open;     // whether the vertex is clear of catch circles and sides

    // Computes the field for a level, which needs its mesh: a search over all vertices. The lines
    // keep `clearance` world units from catch circles and sides where they can.
    explicit Guide(const Level& course, float clearance = closeClearance);

    // Returns the seconds to the goal from a world x and y. Places off the mesh count as its edge.
    float secondsAt(float x, float y) const;

    // Returns the world units on the line from there to the goal that are too steep without turbo.
    float climbAt(float x, float y) const;

    // Returns the direction of the best line there, a unit vector with z = 0.
    Vector3 directionAt(float x, float y) const;

    // Returns whether a line from the start to the goal avoids all holes.
    bool reachesGoal() const;
};
