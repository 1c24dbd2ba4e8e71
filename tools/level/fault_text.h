// Messages about the faults of a level file, for its author.
#pragma once

#include <string>
#include <vector>

#include "data/level_file.h"

// Returns the fault as "LINE:COLUMN: REASON".
std::string faultMessage(const LevelFault& fault);

// Returns a message for each directive that is missing, which leaves it as the level before set it,
// or that occurs more than once.
std::vector<std::string> directiveWarnings(const LevelFileReport& report);
