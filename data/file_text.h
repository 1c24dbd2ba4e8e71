// Reads a whole file of the game into memory.
#pragma once

#include <cstdint>
#include <string>

inline constexpr std::uintmax_t maxFileSize = 16U << 20U; // bytes; no level or drive is longer

// Returns false when the file does not exist, cannot be read, is longer than maxFileSize, or is a
// folder, a pipe or a device. The reason in `why` is worded to follow "cannot be read: ".
bool readWholeFile(const std::string& fileName, std::string& into, std::string& why);
