// The file of this program.
#pragma once

#include <filesystem>

// Returns its path; an empty one when the system does not tell it.
std::filesystem::path programFile();
