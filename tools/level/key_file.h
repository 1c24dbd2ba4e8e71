// Drives kept in files: which keys were held at each tick of a level, and the time that came out.
//
// A text of lines: "ticks N" (a second), "time T" (seconds, with all its digits; 0 when the goal
// was not reached), then "COUNT KEYS" for so many ticks: "12 up left shift", "-" for no key. At
// most 1,000,000 ticks in all.
#pragma once

#include <string>
#include <vector>

#include "tools/level/keys.h"

// Ticks a second that a drive may have. With far more of them a tick would be too short to change
// the clock, a float, and the drive would never end.
inline constexpr int fewestTicksPerSecond = 10;
inline constexpr int mostTicksPerSecond = 10'000;

// The longest drive: a level gives less than half of it, and at most 4 s after its end.
inline constexpr int longestDrive = 100; // seconds

struct KeyFile {
    int ticksPerSecond = 60;
    float time = 0.0F;
    std::vector<Keys> ticks;
};

// Understands a whole number within the bounds above; false for anything else.
bool readTicksPerSecond(const std::string& word, int& ticksPerSecond);

// False with the reason, and the line for a malformed file, in `error`.
bool readKeyFile(const std::string& fileName, KeyFile& into, std::string& error);
bool writeKeyFile(const std::string& fileName, const KeyFile& drive, std::string& error);
