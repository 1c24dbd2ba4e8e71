// Finds where the wells of the loaded level put the marble back, by the game's own rules.
#pragma once

#include <vector>

#include "sim/vector.h"

// The result of dropping a marble into a hole.
struct ReturnSpot {
    int hole;     // index of the hole
    bool found;   // there is a clear spot; otherwise the marble stays caught forever
    Vector3 spot; // world position after the reset
};

// Returns how many of the level's holes findReturnSpots tests: all, or of a large level only the
// first. A test computes the distance to every hole hundreds of times.
int testedHoleCount();

// Returns the spots to which the tested wells put a marble back, two for each well: from the near
// and the far edge of its catch circle. Needs a started run (tools/level/level_run.h) and leaves
// its state unchanged.
std::vector<ReturnSpot> findReturnSpots();

// Returns the spots that were found, without repetitions, in order of y.
std::vector<Vector3> distinctSpots(const std::vector<ReturnSpot>& returns);
