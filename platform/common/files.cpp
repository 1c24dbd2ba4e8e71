#include <cstdio>
#include <string>

#include "platform/common/errors.h"
#include "platform/regular_file.h"
#include "platform/windows_api.h"

namespace {

HANDLE refuse(const std::string& fileName, const std::string& why) {
    setLastError("\"" + fileName + "\" cannot be read: " + why + ".");
    return INVALID_HANDLE_VALUE;
}

bool isOpen(HANDLE file) {
    return file != nullptr && file != INVALID_HANDLE_VALUE;
}

} // namespace

HANDLE WINAPI CreateFileA(const char* fileName, DWORD access, DWORD, SECURITY_ATTRIBUTES*,
                          DWORD creation, DWORD, HANDLE) {
    if (fileName == nullptr) { return refuse("", "it has no name"); }
    if (access != GENERIC_READ || creation != OPEN_EXISTING) {
        return refuse(fileName, "only existing files are opened, and only for reading");
    }
    std::string why;
    File file = openRegularFile(fileName, why);
    return file != nullptr ? file.release() : refuse(fileName, why);
}

BOOL WINAPI ReadFile(HANDLE file, void* buffer, DWORD wanted, DWORD* got, OVERLAPPED*) {
    if (got != nullptr) { *got = 0; }
    if (!isOpen(file)) { return FALSE; }
    auto* stream = static_cast<std::FILE*>(file);
    const std::size_t count = std::fread(buffer, 1, wanted, stream);
    if (got != nullptr) { *got = static_cast<DWORD>(count); }
    return std::ferror(stream) != 0 ? FALSE : TRUE;
}

BOOL WINAPI CloseHandle(HANDLE file) {
    if (!isOpen(file)) { return FALSE; }
    return std::fclose(static_cast<std::FILE*>(file)) == 0 ? TRUE : FALSE;
}
