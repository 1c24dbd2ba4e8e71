// The machine that these tools lend to the game: it has the keys that a driver holds, files to
// read, and ears for what the game would tell the player. No window, no sound, no clock of its own.
#pragma once

#include <string>
#include <vector>

#include "tools/level/keys.h"

struct Machine {
    Keys held = noKey;              // what GetAsyncKeyState reports
    std::vector<std::string> boxes; // texts of the message boxes shown since they were last taken
};

extern Machine machine;

// The texts of the message boxes so far; they are forgotten.
std::vector<std::string> takeBoxes();
