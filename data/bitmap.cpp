#include "data/bitmap.h"

#include <utility>

#include "platform/windows_api.h"

namespace {

constexpr DWORD fileHeaderSize = 14;
constexpr DWORD infoHeaderSize = 40;
constexpr int bytesPerPixel = 3;

struct BitmapInfo {
    std::int32_t width;
    std::int32_t height;
    int bitsPerPixel;
};

std::int32_t littleEndian32(const std::uint8_t* bytes) {
    return static_cast<std::int32_t>(bytes[0] | static_cast<std::uint32_t>(bytes[1]) << 8 |
                                     static_cast<std::uint32_t>(bytes[2]) << 16 |
                                     static_cast<std::uint32_t>(bytes[3]) << 24);
}

// Reads both headers. Of a header that ends early the missing bytes count as 0.
bool readHeaders(HANDLE file, BitmapInfo& info) {
    std::uint8_t fileHeader[fileHeaderSize] = {};
    std::uint8_t infoHeader[infoHeaderSize] = {};
    DWORD got = 0;
    if (!ReadFile(file, fileHeader, fileHeaderSize, &got, nullptr)) return false;
    if (!ReadFile(file, infoHeader, infoHeaderSize, &got, nullptr)) return false;
    info.width = littleEndian32(infoHeader + 4);
    info.height = littleEndian32(infoHeader + 8);
    info.bitsPerPixel = infoHeader[14] | infoHeader[15] << 8;
    return true;
}

// The picture's pixels, or -1 for a picture that the game cannot show.
std::int64_t pixelCount(const BitmapInfo& info) {
    if (info.width < 0 || info.height < 0) return -1;
    if (info.bitsPerPixel != 8 * bytesPerPixel) return -1;
    return std::int64_t{info.width} * info.height;
}

bool readPixels(HANDLE file, std::int64_t count, std::uint8_t* pixels) {
    DWORD got = 0;
    return ReadFile(file, pixels, static_cast<DWORD>(bytesPerPixel * count), &got, nullptr) !=
           FALSE;
}

// The file's blue, green, red becomes red, green, blue.
void exchangeRedAndBlue(std::int64_t count, std::uint8_t* pixels) {
    for (std::int64_t i = 0; i < count; ++i) {
        std::swap(pixels[bytesPerPixel * i], pixels[bytesPerPixel * i + 2]);
    }
}

// Reads the picture if accepts(info) says that it fits the buffer.
template <typename Accepts>
bool readIfAccepted(const char* fileName, std::uint8_t* pixels, Accepts accepts) {
    const HANDLE file = CreateFileA(fileName, GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    BitmapInfo info = {};
    const bool read = readHeaders(file, info) && pixelCount(info) >= 0 && accepts(info) &&
                      readPixels(file, pixelCount(info), pixels);
    const bool closed = CloseHandle(file) != FALSE;
    if (!read || !closed) return false;
    exchangeRedAndBlue(pixelCount(info), pixels);
    return true;
}

} // namespace

bool readBitmap(const char* fileName, std::uint8_t* pixels, std::int32_t capacity) {
    return readIfAccepted(fileName, pixels, [capacity](const BitmapInfo& info) {
        return pixelCount(info) <= capacity / bytesPerPixel;
    });
}

bool readBitmapOfSize(const char* fileName, std::int32_t width, std::int32_t height,
                      std::uint8_t* pixels) {
    return readIfAccepted(fileName, pixels, [width, height](const BitmapInfo& info) {
        return info.width == width && info.height == height;
    });
}
