// Reports mistakes in scores.
#pragma once

#include <string>

// The place in a score that is being read, as "file:line".
extern std::string scorePlace;

// Ends the program with status 1 after "file:line: reason" on standard error.
[[noreturn]] void refuse(const std::string& reason);
