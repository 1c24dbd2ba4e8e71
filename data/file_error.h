// Lines on standard error that name a file of the game and what is wrong with it. The game's own
// messages do not always name the file.
#pragma once

#include <string>

#include "data/tokens.h"

// Opens a file (data/tokens.h). On failure writes the reason.
bool openOrLog(TokenReader& reader, const char* fileName);

// Writes "glorbix: FILE: WHY" as one line.
void logFileError(const std::string& fileName, const std::string& why);

// Writes "glorbix: FILE:LINE:COLUMN: WHY" as one line.
void logFileError(const std::string& fileName, const TextPlace& place, const std::string& why);
