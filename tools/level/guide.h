// The way to the goal as a field: for every place of the loaded level, the seconds that a marble
// needs on the best line, estimated from slopes and holes on the ground mesh. The estimate leaves
// out momentum and turbo.
#pragma once

#include <vector>

#include "sim/level.h"

struct Guide {
    std::vector<float> seconds; // to the goal, for every vertex of the ground mesh
    std::vector<bool> open;     // whether the vertex is clear of catch circles and sides

    // Computes the field for a level, which needs its mesh: a search over all vertices.
    explicit Guide(const Level& course);

    // Returns the seconds to the goal from a world x and y. Places off the mesh count as its edge.
    float secondsAt(float x, float y) const;

    // Returns the direction of the best line there, a unit vector with z = 0.
    Vector3 directionAt(float x, float y) const;

    // Returns whether a line from the start to the goal avoids all holes.
    bool reachesGoal() const;
};
