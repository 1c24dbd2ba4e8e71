// A file that is first put together in memory and then written at once.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

// The bytes of a file to be, with the two byte orders that sound files use.
struct FileBytes {
    std::string bytes;

    // Appends the four letters of a chunk's name, or any other text as it stands.
    void text(std::string_view letters) { bytes += letters; }

    // Append the lowest `count` bytes of a number, least or most significant byte first.
    void littleEndian(std::uint32_t number, int count);
    void bigEndian(std::uint32_t number, int count);

    // Replaces the file at the path; false when it cannot be written whole.
    bool writeTo(const std::filesystem::path& path) const;
};
