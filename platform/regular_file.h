// Reads files that can be read without waiting: regular files. A folder, a device or a pipe without
// a writer is an error even where it has the name of a game file.
//
// The game and the providers read their files here. Nothing of either is included.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, FileCloser>;

// Opens a file for reading. Returns null with the cause in `why`, such as "it is a folder", when
// there is no such file, it may not be read, or it is not a regular file. Defined for each system
// in regular_file_posix.cpp and regular_file_windows.cpp.
File openRegularFile(const std::string& fileName, std::string& why);

// Reads a whole file. What counts is what is read: the size that the system tells may be 0 for a
// file that is not empty, and a file may grow meanwhile. Returns false, with the cause in `why`,
// when the file cannot be opened, has more than `limit` bytes, or the disk fails; `bytes` then
// holds what was read before, at most `limit` bytes.
bool readRegularFile(const std::string& fileName, std::size_t limit,
                     std::vector<std::uint8_t>& bytes, std::string& why);
