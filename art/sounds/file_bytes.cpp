#include "art/sounds/file_bytes.h"

#include <fstream>

void FileBytes::littleEndian(std::uint32_t number, int count) {
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xff);
}

void FileBytes::bigEndian(std::uint32_t number, int count) {
    for (int i = count - 1; i >= 0; --i)
        bytes += static_cast<char>(number >> (8 * i) & 0xff);
}

bool FileBytes::writeTo(const std::filesystem::path& path) const {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return !file.fail();
}
