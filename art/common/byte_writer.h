// The bytes of a file, collected in memory and written at once.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

struct ByteWriter {
    std::string bytes;

    // Appends a text without its final zero.
    void text(std::string_view letters) { bytes += letters; }

    // Append the lowest `count` bytes of a number, least or most significant byte first.
    void littleEndian(std::uint32_t number, int count);
    void bigEndian(std::uint32_t number, int count);

    // Replaces the file. Returns false, after a message on standard error, when it cannot be
    // written.
    bool writeTo(const std::filesystem::path& file) const;
};
