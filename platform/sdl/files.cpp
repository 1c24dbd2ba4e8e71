#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>

#include "platform/sdl/errors.h"
#include "platform/windows_api.h"

namespace {

HANDLE refuse(const char* fileName, const char* why) {
    setLastError("\"" + std::string(fileName) + "\" cannot be read: " + why + ".");
    return INVALID_HANDLE_VALUE;
}

bool isOpen(HANDLE file) {
    return file && file != INVALID_HANDLE_VALUE;
}

} // namespace

HANDLE WINAPI CreateFileA(const char* fileName, DWORD access, DWORD, SECURITY_ATTRIBUTES*,
                          DWORD creation, DWORD, HANDLE) {
    if (!fileName) { return refuse("", "it has no name"); }
    if (access != GENERIC_READ || creation != OPEN_EXISTING) {
        return refuse(fileName, "only existing files are opened, and only for reading");
    }
    std::error_code ignored;
    if (std::filesystem::is_directory(fileName, ignored)) {
        return refuse(fileName, "it is a folder");
    }
    std::FILE* file = std::fopen(fileName, "rb");
    return file ? file : refuse(fileName, std::strerror(errno));
}

BOOL WINAPI ReadFile(HANDLE file, void* buffer, DWORD wanted, DWORD* got, OVERLAPPED*) {
    if (got) { *got = 0; }
    if (!isOpen(file)) { return FALSE; }
    auto* stream = static_cast<std::FILE*>(file);
    const std::size_t count = std::fread(buffer, 1, wanted, stream);
    if (got) { *got = static_cast<DWORD>(count); }
    return std::ferror(stream) ? FALSE : TRUE;
}

BOOL WINAPI CloseHandle(HANDLE file) {
    if (!isOpen(file)) { return FALSE; }
    return std::fclose(static_cast<std::FILE*>(file)) == 0 ? TRUE : FALSE;
}
