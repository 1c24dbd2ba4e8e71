// Files of drives: the keys that were held at each tick of a level, and the resulting time.
//
// A file is lines of text: "ticks N" (a second), "time T" (seconds, with all digits; 0 when the
// goal was not reached), then "COUNT KEYS", the keys held for that many ticks: "12 up left shift",
// or "-" for no key. A file has at most maxDriveSeconds * maxTicksPerSecond ticks. Lines "digest N
// D" give the digest of the first N ticks in hexadecimal; a file written by hand needs none.
#pragma once

#include <string>
#include <vector>

#include "tools/level/drive_digest.h"
#include "tools/level/keys.h"

// Ticks a second that a drive may have. With many more, a tick would be too short to change the
// clock, a float, and the drive would never end.
inline constexpr int minTicksPerSecond = 10;
inline constexpr int maxTicksPerSecond = 10'000;

inline constexpr std::size_t maxKeyFileSize = 16U << 20U; // bytes; enough for a million ticks

// The longest drive; a level ends within half of that unless the marble is caught forever.
inline constexpr int maxDriveSeconds = 100;

struct KeyFile {
    int ticksPerSecond = 60;
    float time = 0.0F;
    std::vector<Keys> ticks;
    std::vector<Checkpoint> checkpoints; // in the order of their ticks
};

// Reads a whole number within these bounds. Returns false for anything else.
bool readTicksPerSecond(const std::string& word, int& ticksPerSecond);

// Return false, with the reason and the line of a malformed file in `error`. A file of more than
// maxKeyFileSize bytes is not read.
bool readKeyFile(const std::string& fileName, KeyFile& into, std::string& error);
bool writeKeyFile(const std::string& fileName, const KeyFile& drive, std::string& error);
