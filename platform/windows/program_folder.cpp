// What the program does before WinMain. It chooses the working directory, a folder that holds the
// game's data: the current one if it does, otherwise that of the program, wherever the program was
// started from. And it gives a new player a table to beat.
#include <string>

#include <windows.h>

namespace {

constexpr const wchar_t* listOfLevels = L"maps\\maplist.dat";
constexpr DWORD longestPath = 32'768; // characters, with the final zero

// Returns the folder of the program file, empty when the system does not report it.
std::wstring folderOfProgram() {
    std::wstring file(longestPath, L'\0');
    file.resize(GetModuleFileNameW(nullptr, file.data(), longestPath));
    const std::size_t separator = file.rfind(L'\\');
    return separator == std::wstring::npos ? std::wstring() : file.substr(0, separator + 1);
}

// Copies the rivals beside the program to the file of best times, unless there is such a file.
void layOutRivals(const std::wstring& folder) {
    constexpr BOOL keepExisting = TRUE;
    CopyFileW((folder + L"rivals.dat").c_str(), (folder + L"highScore.dat").c_str(), keepExisting);
}

bool enterGameFolder() {
    const std::wstring folder = folderOfProgram();
    layOutRivals(folder);
    if (GetFileAttributesW(listOfLevels) != INVALID_FILE_ATTRIBUTES) { return true; }
    return SetCurrentDirectoryW(folder.c_str()) != FALSE;
}

// Where it fails, the game reports that its data is missing.
[[maybe_unused]] const bool entered = enterGameFolder();

} // namespace
