// The way to the goal, as a field: from every place of the loaded level the seconds that a marble
// would need by the best line, judged from the slopes and the holes on the ground mesh.
//
// An estimate: it knows no momentum. It never uses turbo.
#pragma once

#include <vector>

#include "sim/level.h"

struct Guide {
    std::vector<float> seconds; // to the goal, for every vertex of the ground mesh
    std::vector<bool> open;     // whether the marble may be there: no catch radius, no edge near

    // Works the field out for a level. Costs one height of the mesh per vertex and a search over
    // all of them: some 20 ms.
    explicit Guide(const Level& course);

    // Seconds to the goal from a world place; places off the course count as its edge.
    float secondsAt(float x, float y) const;

    // The direction of the best line there, a unit vector in the plane (z is 0).
    Vector3 directionAt(float x, float y) const;

    // Whether some line from the start reaches the goal past all holes.
    bool reachesGoal() const;
};
