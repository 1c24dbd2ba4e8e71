// Where the wells of the loaded level put the marble back, as the game itself does it.
#pragma once

#include <vector>

#include "sim/vector.h"

// What became of a marble that a hole caught.
struct Return {
    int hole;     // index of the hole
    bool found;   // there was a clear spot; otherwise the marble stays caught for ever
    Vector3 spot; // where it came back to
};

// How many of the level's holes findReturns looks at: all of some thousand. Trying one asks for its
// distance to all others hundreds of times.
int wellsTried();

// For each well of the course, of the holes that it looks at, the spot it returns a marble to, from the near and the far edge of
// its catch radius in turn. Needs a started run (tools/level/level_run.h), which it leaves as it
// was.
std::vector<Return> findReturns();

// The different spots among them, from the start on.
std::vector<Vector3> differentSpots(const std::vector<Return>& returns);
