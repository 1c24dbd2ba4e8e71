// The one way to read a whole file of the game into memory.
#pragma once

#include <cstdint>
#include <string>

inline constexpr std::uintmax_t largestFile = 16U << 20U; // bytes; no level or drive is longer

// Returns false, with the reason as words to follow "cannot be read: ", when there is no such file,
// it cannot be read, it is longer than largestFile, or it is not a file but a folder, a pipe or a
// device.
bool readWholeFile(const std::string& fileName, std::string& into, std::string& why);
