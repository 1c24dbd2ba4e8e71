// What is wrong with a level file, in words for its author.
#pragma once

#include <string>
#include <vector>

#include "data/level_file.h"

// The fault as "line:column: what is wrong".
std::string explainFault(const LevelFault& fault);

// Directives that are missing, and so stay as the level before set them, or that occur twice.
std::vector<std::string> findOddDirectives(const LevelFileReport& report);
