#include "data/bitmap.h"

#include <utility>

namespace {

std::int32_t littleEndian32(const std::uint8_t* bytes) {
    return static_cast<std::int32_t>(bytes[0] | static_cast<std::uint32_t>(bytes[1]) << 8 |
                                     static_cast<std::uint32_t>(bytes[2]) << 16 |
                                     static_cast<std::uint32_t>(bytes[3]) << 24);
}

} // namespace

BitmapInfo parseBitmapInfo(const std::uint8_t (&infoHeader)[bitmapInfoHeaderSize]) {
    return {.width = littleEndian32(infoHeader + 4),
            .height = littleEndian32(infoHeader + 8),
            .bitsPerPixel = infoHeader[14] | infoHeader[15] << 8};
}

std::int64_t pixelBytes(const BitmapInfo& info) {
    if (info.bitsPerPixel != 8 * bytesPerPixel) { return -1; }
    if (info.width < 0 || info.height < 0) { return -1; }
    const std::int64_t pixels = std::int64_t{info.width} * info.height;
    return pixels <= INT32_MAX / bytesPerPixel ? bytesPerPixel * pixels : -1;
}

void swapRedAndBlue(std::uint8_t* pixels, std::int64_t byteCount) {
    for (std::int64_t i = 0; i < byteCount; i += bytesPerPixel) {
        std::swap(pixels[i], pixels[i + 2]);
    }
}
