// Reads a text that somebody wrote by hand, as a whole.
#pragma once

#include <string>

// False with the reason, which begins with the file's name, in `error`: for what is not a file (a
// folder, a pipe, a device), cannot be read, or is longer than 16 MiB, which is far more than the
// longest level or drive.
bool readTextFile(const std::string& fileName, std::string& text, std::string& error);
