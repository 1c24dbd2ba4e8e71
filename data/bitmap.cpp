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

bool readPixels(HANDLE file, std::int32_t width, std::int32_t height, std::uint8_t* pixels) {
    BitmapInfo info = {};
    if (!readHeaders(file, info)) return false;
    if (info.width != width || info.height != height) return false;
    if (info.bitsPerPixel != 8 * bytesPerPixel) return false;
    DWORD got = 0;
    const DWORD wanted = static_cast<DWORD>(bytesPerPixel * height * width);
    return ReadFile(file, pixels, wanted, &got, nullptr) != FALSE;
}

// The file's blue, green, red becomes red, green, blue.
void exchangeRedAndBlue(std::uint8_t* pixels, std::int32_t byteCount) {
    for (std::int32_t i = 0; i < byteCount; i += bytesPerPixel) {
        std::swap(pixels[i], pixels[i + 2]);
    }
}

} // namespace

bool readBitmap(const char* fileName, std::int32_t width, std::int32_t height,
                std::uint8_t* pixels) {
    const HANDLE file = CreateFileA(fileName, GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    const bool read = readPixels(file, width, height, pixels);
    const bool closed = CloseHandle(file) != FALSE;
    if (!read || !closed) return false;
    exchangeRedAndBlue(pixels, bytesPerPixel * height * width);
    return true;
}
