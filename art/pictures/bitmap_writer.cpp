#include "art/pictures/bitmap_writer.h"

#include <fstream>

namespace {

constexpr std::uint32_t headerBytes = 14 + 40;
constexpr std::uint32_t dotsPerMetre = 2835; // 72 an inch

void put(std::vector<std::uint8_t>& file, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        file.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

std::vector<std::uint8_t> headers(const Picture& picture, std::uint32_t pixelBytes) {
    std::vector<std::uint8_t> file = {'B', 'M'};
    put(file, headerBytes + pixelBytes, 4);
    put(file, 0, 4);
    put(file, headerBytes, 4);
    put(file, 40, 4);
    put(file, static_cast<std::uint32_t>(picture.width), 4);
    put(file, static_cast<std::uint32_t>(picture.height), 4);
    put(file, 1, 2);
    put(file, 24, 2);
    put(file, 0, 4);
    put(file, pixelBytes, 4);
    put(file, dotsPerMetre, 4);
    put(file, dotsPerMetre, 4);
    put(file, 0, 4);
    put(file, 0, 4);
    return file;
}

void putRow(std::vector<std::uint8_t>& file, const Picture& picture, int y) {
    for (int x = 0; x < picture.width; ++x) {
        const std::uint8_t* pixel = picture.at(x, y);
        file.insert(file.end(), {pixel[2], pixel[1], pixel[0]});
    }
}

} // namespace

bool writeBitmap(const Picture& picture, const std::string& fileName) {
    const int standardRowBytes = (picture.width * 3 + 3) / 4 * 4;
    const auto pixelBytes = static_cast<std::uint32_t>(standardRowBytes * picture.height);
    std::vector<std::uint8_t> file = headers(picture, pixelBytes);
    for (int y = picture.height - 1; y >= 0; --y)
        putRow(file, picture, y);
    file.resize(headerBytes + pixelBytes);

    std::ofstream out(fileName, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(file.data()),
              static_cast<std::streamsize>(file.size()));
    return out.flush().good();
}
