#include "art/pictures/bitmap_writer.h"

#include "art/common/byte_writer.h"

bool writeBitmap(const Image8& image, const std::filesystem::path& file) {
    constexpr std::uint32_t fileHeader = 14;
    constexpr std::uint32_t informationHeader = 40;
    constexpr std::uint32_t headers = fileHeader + informationHeader;
    constexpr std::uint32_t pixelsPerMetre = 2835; // 72 an inch
    const int standardRow = (image.width * 3 + 3) / 4 * 4;
    const auto pixelBytes = static_cast<std::uint32_t>(standardRow * image.height);

    ByteWriter out;
    out.text("BM");
    out.littleEndian(headers + pixelBytes, 4);
    out.littleEndian(0, 4); // reserved
    out.littleEndian(headers, 4);
    out.littleEndian(informationHeader, 4);
    out.littleEndian(static_cast<std::uint32_t>(image.width), 4);
    out.littleEndian(static_cast<std::uint32_t>(image.height), 4);
    out.littleEndian(1, 2);  // planes
    out.littleEndian(24, 2); // bits of a pixel
    out.littleEndian(0, 4);  // not compressed
    out.littleEndian(pixelBytes, 4);
    out.littleEndian(pixelsPerMetre, 4);
    out.littleEndian(pixelsPerMetre, 4);
    out.littleEndian(0, 4); // no palette
    out.littleEndian(0, 4);
    for (int y = image.height - 1; y >= 0; --y) {
        for (int x = 0; x < image.width; ++x) {
            const Rgb8& pixel = image.at(x, y);
            out.littleEndian((pixel[0] << 16U) | (pixel[1] << 8U) | pixel[2], 3);
        }
    }
    out.bytes.resize(headers + pixelBytes);
    return out.writeTo(file);
}
