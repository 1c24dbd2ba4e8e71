// A whole drive of one level, by whoever holds the keys.
#pragma once

#include <functional>

#include "tools/level/course_map.h"
#include "tools/level/key_file.h"
#include "tools/level/level_run.h"

struct Drive {
    KeyFile keys;
    RunState end;                // how it ended
    std::vector<LinePoint> line; // where it went
};

// The keys to hold in the next tick of `dt` seconds.
using KeyHolder = std::function<Keys(float dt)>;

// Drives a started run (startRun) to its end, or for `longestDrive` seconds: a marble that is caught
// for ever also keeps the clock from running out.
Drive driveToEnd(int ticksPerSecond, const KeyHolder& holder);

// Drives a started run by the keys of a file; after its last key none is held.
Drive replay(const KeyFile& keys);
