#include "app/bitmap_file.h"

#include "data/bitmap.h"
#include "data/file_error.h"
#include "platform/windows_api.h"

namespace {

// Reads both headers. Missing bytes of a file that ends early count as 0.
bool readHeaders(HANDLE file, BitmapInfo& info) {
    std::uint8_t fileHeader[bitmapFileHeaderSize] = {};
    std::uint8_t infoHeader[bitmapInfoHeaderSize] = {};
    DWORD got = 0;
    if (!ReadFile(file, fileHeader, bitmapFileHeaderSize, &got, nullptr)) { return false; }
    if (!ReadFile(file, infoHeader, bitmapInfoHeaderSize, &got, nullptr)) { return false; }
    info = parseBitmapInfo(infoHeader);
    return true;
}

// Takes what there is of a picture whose file ends early.
bool readPixels(HANDLE file, const char* fileName, std::int64_t bytes, std::uint8_t* pixels) {
    DWORD got = 0;
    if (!ReadFile(file, pixels, static_cast<DWORD>(bytes), &got, nullptr)) { return false; }
    if (got < bytes) { logFileError(fileName, "the end of this bitmap is missing"); }
    return true;
}

// Reads the picture if accepts(info) returns that it fits the buffer.
template <typename Accepts>
bool readIfAccepted(const char* fileName, std::uint8_t* pixels, Accepts accepts) {
    const HANDLE file = CreateFileA(fileName, GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) { return false; }
    BitmapInfo info = {};
    const bool read = readHeaders(file, info) && pixelBytes(info) >= 0 && accepts(info) &&
                      readPixels(file, fileName, pixelBytes(info), pixels);
    const bool closed = CloseHandle(file) != FALSE;
    if (!read || !closed) { return false; }
    swapRedAndBlue(pixels, pixelBytes(info));
    return true;
}

} // namespace

bool readBitmap(const char* fileName, std::uint8_t* pixels, std::int32_t capacity) {
    return readIfAccepted(fileName, pixels, [capacity](const BitmapInfo& info) {
        return pixelBytes(info) <= capacity;
    });
}

bool readBitmapOfSize(const char* fileName, std::int32_t width, std::int32_t height,
                      std::uint8_t* pixels) {
    return readIfAccepted(fileName, pixels, [width, height](const BitmapInfo& info) {
        return info.width == width && info.height == height;
    });
}
