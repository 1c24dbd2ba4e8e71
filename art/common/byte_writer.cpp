#include "art/common/byte_writer.h"

#include <fstream>
#include <iostream>

void ByteWriter::littleEndian(std::uint32_t number, int count) {
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(number >> (8 * i) & 0xff);
    }
}

void ByteWriter::bigEndian(std::uint32_t number, int count) {
    for (int i = count - 1; i >= 0; --i) {
        bytes += static_cast<char>(number >> (8 * i) & 0xff);
    }
}

bool ByteWriter::writeTo(const std::filesystem::path& file) const {
    std::error_code ignored; // without the folder, opening the file fails
    std::filesystem::create_directories(file.parent_path(), ignored);
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (out.fail()) { std::cerr << "cannot write " << file.string() << '\n'; }
    return !out.fail();
}
