// Drives kept in files: which keys were held at each tick of a level, and the time that came out.
//
// A text of lines: "ticks N" (a second), "time T" (seconds, with all its digits; 0 when the goal
// was not reached), then "COUNT KEYS" for so many ticks: "12 up left shift", "-" for no key.
#pragma once

#include <string>
#include <vector>

#include "tools/level/keys.h"

struct KeyFile {
    int ticksPerSecond = 60;
    float time = 0.0F;
    std::vector<Keys> ticks;
};

// False with the reason, and the line for a malformed file, in `error`.
bool readKeyFile(const std::string& fileName, KeyFile& into, std::string& error);
bool writeKeyFile(const std::string& fileName, const KeyFile& drive, std::string& error);
