// A whole drive of one level.
#pragma once

#include <functional>

#include "tools/level/course_map.h"
#include "tools/level/key_file.h"
#include "tools/level/level_run.h"

struct Drive {
    KeyFile keys;                // with its checkpoints
    RunState end;                // the state at its end
    std::vector<LinePoint> line; // the marble's path, one point for each tick
};

// Returns the keys to hold in the next tick of `dt` seconds.
using KeySource = std::function<Keys(float dt)>;

// Drives a started run (startRun) to its end, or for maxDriveSeconds: the clock of a marble that is
// caught forever never runs out.
Drive driveToEnd(int ticksPerSecond, const KeySource& nextKeys);

// Drives a started run by the keys of a file; after its last key none is held.
Drive replay(const KeyFile& keys);
