// Reads files of music and of effects whole, as far as they can be read safely.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The bytes of a file. None, with the cause in `why` (such as "it is a folder"), when it is no
// regular file, has more than `limit` bytes or the disk fails. A pipe of that name does not block.
std::optional<std::vector<std::uint8_t>> readSoundFile(const std::string& fileName,
                                                       std::size_t limit, std::string& why);
