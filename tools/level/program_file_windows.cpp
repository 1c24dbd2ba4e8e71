#include <string>

#include <windows.h>

#include "tools/level/program_file.h"

std::filesystem::path programFile() {
    constexpr DWORD longestPath = 32'768; // characters, with the final zero
    std::wstring file(longestPath, L'\0');
    file.resize(GetModuleFileNameW(nullptr, file.data(), longestPath));
    return file;
}
