// The door's functions as the tests play them, in the order of platform/windows_api.h. What the
// game hands over by fixed rules is checked here, once for all tests.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <sstream>

#include "fakes/play.h"
#include "fakes/trace.h"

namespace {

template <class Handle>
Handle handle(UINT_PTR number) {
    return reinterpret_cast<Handle>(number);
}

// Writes the call down and gives the answer.
template <class Answer, class... Values>
Answer noted(Answer answer, const char* function, const Values&... values) {
    std::ostringstream line;
    line << function;
    ((line << ' ' << values), ...);
    machine.lines.push_back(line.str());
    return answer;
}

const char* nameOf(HWND window) {
    if (window == nullptr) { return "nobody"; }
    return window == theWindow ? "window" : window == focusWindow ? "focus" : "stranger";
}

bool succeeds(const char* function) {
    return failureOf(function) == 0;
}

} // namespace

const HWND theWindow = handle<HWND>(0x100);
const HWND focusWindow = handle<HWND>(0x200);
const HDC theSurface = handle<HDC>(0x300);
const HGLRC theContext = handle<HGLRC>(0x400);

// Windows and messages

HICON LoadIconA(HINSTANCE, const char* name) {
    return noted(nullptr, "LoadIconA", name);
}
HCURSOR LoadCursorA(HINSTANCE, const char*) {
    return handle<HCURSOR>(0x500);
}

ATOM RegisterClassA(const WNDCLASSA* windowClass) {
    machine.windowClass = *windowClass;
    return noted(succeeds("RegisterClassA"), "RegisterClassA", windowClass->lpszClassName);
}

HWND CreateWindowExA(DWORD extendedStyle, const char* className, const char* title, DWORD style,
                     int x, int y, int width, int height, HWND parent, HMENU menu, HINSTANCE,
                     void*) {
    EXPECT_TRUE(parent == nullptr && menu == nullptr);
    noted(0, "CreateWindowExA", extendedStyle, className, title, style, x, y, width, height);
    if (!succeeds("CreateWindowExA")) { return nullptr; }
    machine.windowClass.lpfnWndProc(theWindow, WM_CREATE, 0, 0);
    return theWindow;
}

BOOL ShowWindow(HWND window, int mode) {
    return noted(FALSE, "ShowWindow", nameOf(window), mode);
}
BOOL UpdateWindow(HWND window) {
    noted(0, "UpdateWindow", nameOf(window));
    return machine.windowClass.lpfnWndProc(window, WM_PAINT, 0, 0) == 0;
}

int ShowCursor(BOOL show) {
    return noted(machine.cursorCount += show != FALSE ? 1 : -1, "ShowCursor", show);
}

BOOL PeekMessageA(MSG* message, HWND, UINT first, UINT last, UINT remove) {
    EXPECT_TRUE(first == 0 && last == 0 && remove == PM_REMOVE);
    *message = {};
    if (machine.queue.empty() && !machine.quitPosted && machine.whenIdle) { machine.whenIdle(); }
    if (!machine.queue.empty()) {
        *message = machine.queue.front();
        machine.queue.pop_front();
        return TRUE;
    }
    if (!machine.quitPosted) { return FALSE; }
    message->message = WM_QUIT;
    message->wParam = static_cast<WPARAM>(machine.quitCode);
    return TRUE;
}

BOOL TranslateMessage(const MSG*) {
    return FALSE;
}
LRESULT DispatchMessageA(const MSG* message) {
    if (message->hwnd == nullptr) {
        return 0; // the quit message
    }
    return GameWindowProc(message->hwnd, message->message, message->wParam, message->lParam);
}

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    EXPECT_EQ(window, theWindow);
    machine.queue.push_back(MSG{window, message, wParam, lParam, 0, {0, 0}});
    return noted(TRUE, "PostMessageA", message, wParam);
}

void PostQuitMessage(int exitCode) {
    machine.quitPosted = true;
    machine.quitCode = noted(exitCode, "PostQuitMessage", exitCode);
}

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return noted(77, "DefWindowProcA", nameOf(window), message, wParam, lParam);
}

HDC BeginPaint(HWND window, PAINTSTRUCT*) {
    return noted(theSurface, "BeginPaint", nameOf(window));
}
BOOL EndPaint(HWND window, const PAINTSTRUCT*) {
    return noted(TRUE, "EndPaint", nameOf(window));
}

UINT_PTR SetTimer(HWND window, UINT_PTR timer, UINT period, TIMERPROC callback) {
    EXPECT_EQ(callback, nullptr);
    return noted(timer, "SetTimer", nameOf(window), timer, period);
}

HWND GetFocus() {
    return focusWindow;
}

// A key that is up carries the bit that says it was pressed since the last call.
SHORT GetAsyncKeyState(int key) {
    return machine.keysHeld.contains(key) ? static_cast<SHORT>(-0x8000) : SHORT{1};
}

int MessageBoxA(HWND owner, const char* text, const char* caption, UINT type) {
    const char* icon = type == MB_ICONHAND ? ", stop" : type == MB_ICONINFORMATION ? ", info" : "";
    EXPECT_TRUE(type == MB_OK || *icon != '\0') << type;
    return noted(1, "MessageBoxA", text, "|", caption, "|", std::string(nameOf(owner)) + icon);
}

// Display settings

BOOL EnumDisplaySettingsA(const char* device, DWORD index, DEVMODEA* mode) {
    EXPECT_TRUE(device == nullptr && mode->dmSize == sizeof(DEVMODEA));
    if (index >= machine.modes.size()) { return FALSE; }
    *mode = machine.modes[index];
    return TRUE;
}

LONG ChangeDisplaySettingsA(DEVMODEA* mode, DWORD flags) {
    EXPECT_EQ(flags, 0U);
    if (mode == nullptr) { return noted(DISP_CHANGE_SUCCESSFUL, "ChangeDisplaySettingsA restore"); }
    machine.switchResults.push_back(DISP_CHANGE_SUCCESSFUL);
    const LONG result = machine.switchResults.front();
    machine.switchResults.pop_front();
    return noted(result, "ChangeDisplaySettingsA", mode->dmBitsPerPel, mode->dmPelsWidth,
                 mode->dmPelsHeight, mode->dmFields);
}

// Pixel format, buffers and the binding of OpenGL

HDC GetDC(HWND window) {
    return noted(theSurface, "GetDC", nameOf(window));
}
int ReleaseDC(HWND window, HDC) {
    return noted(1, "ReleaseDC", nameOf(window));
}

int ChoosePixelFormat(HDC, const PIXELFORMATDESCRIPTOR* wanted) {
    PIXELFORMATDESCRIPTOR expected = {};
    expected.nSize = 40;
    expected.nVersion = 1;
    expected.dwFlags = 0x21;
    expected.cColorBits = expected.cDepthBits = 16;
    EXPECT_EQ(std::memcmp(wanted, &expected, sizeof expected), 0);
    return noted(succeeds("ChoosePixelFormat") ? 3 : 0, "ChoosePixelFormat");
}

int DescribePixelFormat(HDC, int, UINT, PIXELFORMATDESCRIPTOR* description) {
    *description = {};
    description->dwFlags = 0x21U | (machine.formatNeedsPalette ? PFD_NEED_PALETTE : 0U);
    return 3;
}

BOOL SetPixelFormat(HDC, int format, const PIXELFORMATDESCRIPTOR* wanted) {
    EXPECT_EQ(wanted->cDepthBits, 16);
    return noted(succeeds("SetPixelFormat"), "SetPixelFormat", format);
}

BOOL SwapBuffers(HDC deviceContext) {
    EXPECT_EQ(deviceContext, theSurface);
    machine.drawn.emplace_back("SwapBuffers");
    return TRUE;
}

HGLRC wglCreateContext(HDC) {
    return noted(theContext, "wglCreateContext");
}
BOOL wglMakeCurrent(HDC, HGLRC) {
    return noted(TRUE, "wglMakeCurrent");
}
BOOL wglDeleteContext(HGLRC) {
    return noted(TRUE, "wglDeleteContext");
}

// Sound and music

BOOL PlaySoundA(const char* fileName, HMODULE module, DWORD flags) {
    EXPECT_TRUE(module == nullptr && flags == 0x20001);
    return noted(TRUE, "PlaySoundA", fileName);
}

BOOL MessageBeep(UINT type) {
    return noted(TRUE, "MessageBeep", type);
}

namespace {

int openMusic(MCI_OPEN_PARMSA& parameters) {
    EXPECT_STREQ(parameters.lpstrDeviceType, "sequencer");
    const int error = noted(failureOf("MCI_OPEN"), "MCI open", parameters.lpstrElementName);
    if (error == 0) { machine.devices.insert(parameters.wDeviceID = ++machine.lastDevice); }
    return error;
}

int commandMusic(MCIDEVICEID device, UINT command, DWORD_PTR flags, DWORD_PTR parameters) {
    if (command == MCI_OPEN) {
        EXPECT_EQ(flags, 0x2200U);
        return openMusic(*reinterpret_cast<MCI_OPEN_PARMSA*>(parameters));
    }
    const bool isOpen = machine.devices.contains(device);
    if (command == MCI_CLOSE) {
        EXPECT_TRUE(flags == 0 && parameters == 0);
        machine.devices.erase(device);
        return noted(isOpen ? 0 : 257, isOpen ? "MCI close" : "MCI close stale", device);
    }
    EXPECT_TRUE(isOpen) << device;
    if (command == MCI_STATUS) {
        const auto& status = *reinterpret_cast<MCI_STATUS_PARMS*>(parameters);
        EXPECT_TRUE(flags == MCI_STATUS_ITEM && status.dwItem == MCI_SEQ_STATUS_PORT);
        return noted(failureOf("MCI_STATUS"), "MCI status", device);
    }
    const auto& play = *reinterpret_cast<MCI_PLAY_PARMS*>(parameters);
    EXPECT_TRUE(command == MCI_PLAY && flags == MCI_NOTIFY);
    EXPECT_EQ(play.dwCallback, reinterpret_cast<DWORD_PTR>(theWindow));
    return noted(failureOf("MCI_PLAY"), "MCI play", device);
}

} // namespace

MCIERROR mciSendCommandA(MCIDEVICEID device, UINT command, DWORD_PTR flags, DWORD_PTR parameters) {
    return static_cast<MCIERROR>(commandMusic(device, command, flags, parameters));
}

// Clock

BOOL QueryPerformanceFrequency(LARGE_INTEGER* frequency) {
    frequency->QuadPart = counterFrequency;
    return TRUE;
}

BOOL QueryPerformanceCounter(LARGE_INTEGER* counter) {
    counter->QuadPart = machine.counter;
    return TRUE;
}

// Files: the real ones

HANDLE CreateFileA(const char* fileName, DWORD access, DWORD share, SECURITY_ATTRIBUTES*,
                   DWORD creation, DWORD attributes, HANDLE) {
    EXPECT_TRUE(access == GENERIC_READ && share == 0);
    EXPECT_TRUE(creation == OPEN_EXISTING && attributes == FILE_ATTRIBUTE_NORMAL);
    std::FILE* file = noted(std::fopen(fileName, "rb"), "CreateFileA", fileName);
    if (file == nullptr) { return INVALID_HANDLE_VALUE; }
    ++machine.openFiles;
    return file;
}

BOOL ReadFile(HANDLE file, void* buffer, DWORD wanted, DWORD* got, OVERLAPPED*) {
    if (!succeeds("ReadFile")) { return FALSE; }
    *got = static_cast<DWORD>(std::fread(buffer, 1, wanted, static_cast<std::FILE*>(file)));
    return TRUE;
}

BOOL CloseHandle(HANDLE file) {
    std::fclose(static_cast<std::FILE*>(file));
    --machine.openFiles;
    return succeeds("CloseHandle");
}

// Errors in the system's words

DWORD GetLastError() {
    return 1234;
}

DWORD FormatMessageA(DWORD flags, const void*, DWORD error, DWORD language, char* buffer, DWORD,
                     void*) {
    EXPECT_TRUE(flags == 0x1100 && error == 1234 && language == 0x400);
    char* text = new char[16]{"in other words"};
    std::memcpy(buffer, &text, sizeof text);
    ++machine.systemTexts;
    return static_cast<DWORD>(std::strlen(text));
}

HLOCAL LocalFree(HLOCAL memory) {
    if (memory != nullptr) { --machine.systemTexts; }
    delete[] static_cast<char*>(memory);
    return nullptr;
}
