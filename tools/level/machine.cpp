// What the linked parts of the game ask of the machine:
//   GetAsyncKeyState, MessageBoxA, CreateFileA, ReadFile, CloseHandle: answered;
//   PlaySoundA, mciSendCommandA, PostMessageA, PostQuitMessage, QueryPerformanceCounter: taken and
//   passed over, since ticks here are counted, not measured.
// OpenGL's functions come from the system's library, where they do nothing without a context.
#include "tools/level/machine.h"

#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/windows_api.h"

Machine machine;

std::vector<std::string> takeBoxes() {
    return std::exchange(machine.boxes, {});
}

namespace {

Keys keyOf(int virtualKey) {
    switch (virtualKey) {
    case VK_LEFT: return leftKey;
    case VK_RIGHT: return rightKey;
    case VK_UP: return upKey;
    case VK_DOWN: return downKey;
    case VK_SHIFT: return turboKey;
    default: return noKey;
    }
}

} // namespace

SHORT WINAPI GetAsyncKeyState(int key) {
    return (machine.held & keyOf(key)) != 0 ? static_cast<SHORT>(-0x8000) : SHORT{0};
}

int WINAPI MessageBoxA(HWND, const char* text, const char*, UINT) {
    machine.boxes.emplace_back(text);
    return 1;
}

HANDLE WINAPI CreateFileA(const char* fileName, DWORD, DWORD, SECURITY_ATTRIBUTES*, DWORD, DWORD,
                          HANDLE) {
    std::error_code error; // a pipe would wait for somebody who writes to it
    const bool isFile = std::filesystem::is_regular_file(fileName, error);
    std::FILE* file = isFile ? std::fopen(fileName, "rb") : nullptr;
    return file == nullptr ? INVALID_HANDLE_VALUE : file;
}

BOOL WINAPI ReadFile(HANDLE file, void* buffer, DWORD wanted, DWORD* got, OVERLAPPED*) {
    auto* stream = static_cast<std::FILE*>(file);
    *got = static_cast<DWORD>(std::fread(buffer, 1, wanted, stream));
    return std::ferror(stream) == 0 ? TRUE : FALSE;
}

BOOL WINAPI CloseHandle(HANDLE file) {
    return std::fclose(static_cast<std::FILE*>(file)) == 0 ? TRUE : FALSE;
}

BOOL WINAPI PlaySoundA(const char*, HMODULE, DWORD) {
    return TRUE;
}

MCIERROR WINAPI mciSendCommandA(MCIDEVICEID, UINT, DWORD_PTR, DWORD_PTR) {
    return 0;
}

BOOL WINAPI PostMessageA(HWND, UINT, WPARAM, LPARAM) {
    return TRUE;
}

void WINAPI PostQuitMessage(int) {}

BOOL WINAPI QueryPerformanceCounter(LARGE_INTEGER* counter) {
    counter->QuadPart = 0;
    return TRUE;
}
