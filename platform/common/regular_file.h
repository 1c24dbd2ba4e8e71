// Opens files for reading, but only those that can be read without waiting: regular files.
// A folder, a device or a pipe without a writer is an error even where it has the name of a game
// file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, FileCloser>;

// Opens a file for reading. Returns null with the cause in `why`, such as "it is a folder", when
// there is no such file, it may not be read, or it is not a regular file.
File openRegularFile(const std::string& fileName, std::string& why);

// Returns the bytes of a whole file; nothing, with the cause in `why`, when it cannot be opened,
// has more than `limit` bytes, or the disk fails.
std::optional<std::vector<std::uint8_t>> readRegularFile(const std::string& fileName,
                                                         std::size_t limit, std::string& why);
