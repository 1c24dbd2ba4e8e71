// The working directory, chosen before WinMain: a folder that holds the game's data. The current
// one if it does, otherwise that of the program, wherever the program was started from.
#include <string>

#include <windows.h>

namespace {

constexpr const wchar_t* listOfLevels = L"maps\\maplist.dat";
constexpr DWORD longestPath = 32'768; // characters, with the final zero

// Returns the folder of the program file, empty when the system does not tell it.
std::wstring folderOfProgram() {
    std::wstring file(longestPath, L'\0');
    file.resize(GetModuleFileNameW(nullptr, file.data(), longestPath));
    const std::size_t separator = file.rfind(L'\\');
    return separator == std::wstring::npos ? std::wstring() : file.substr(0, separator + 1);
}

bool enterGameFolder() {
    if (GetFileAttributesW(listOfLevels) != INVALID_FILE_ATTRIBUTES) { return true; }
    return SetCurrentDirectoryW(folderOfProgram().c_str()) != FALSE;
}

// Where it fails, the game reports that its data is missing.
[[maybe_unused]] const bool entered = enterGameFolder();

} // namespace
