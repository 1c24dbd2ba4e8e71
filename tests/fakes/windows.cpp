// The door's functions as the tests play them, in the order of platform/windows_api.h.
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

// Writes the call down; always TRUE, the answer of most functions.
template <class... Values>
BOOL noteCall(const char* function, const Values&... values) {
    std::ostringstream line;
    line << function;
    ((line << ' ' << values), ...);
    note(line.str());
    return TRUE;
}

std::string nameOf(HWND window) {
    if (window == nullptr) return "nobody";
    return window == theWindow ? "window" : window == focusWindow ? "focus" : "stranger";
}

} // namespace

const HWND theWindow = handle<HWND>(0x100);
const HWND focusWindow = handle<HWND>(0x200);
const HDC theSurface = handle<HDC>(0x300);
const HGLRC theContext = handle<HGLRC>(0x400);

// Windows and messages

HICON LoadIconA(HINSTANCE, const char* name) {
    noteCall("LoadIconA", name);
    return nullptr;
}

HCURSOR LoadCursorA(HINSTANCE instance, const char* name) {
    EXPECT_EQ(instance, nullptr);
    EXPECT_EQ(name, IDC_ARROW);
    return handle<HCURSOR>(0x500);
}

ATOM RegisterClassA(const WNDCLASSA* windowClass) {
    noteCall("RegisterClassA", windowClass->lpszClassName);
    machine.windowClass = *windowClass;
    return failureOf("RegisterClassA") != 0 ? 0 : 1;
}

HWND CreateWindowExA(DWORD extendedStyle, const char* className, const char* title, DWORD style,
                     int x, int y, int width, int height, HWND parent, HMENU menu, HINSTANCE,
                     void*) {
    EXPECT_EQ(parent, nullptr);
    EXPECT_EQ(menu, nullptr);
    noteCall("CreateWindowExA", extendedStyle, className, title, style, x, y, width, height);
    if (failureOf("CreateWindowExA") != 0) return nullptr;
    machine.windowClass.lpfnWndProc(theWindow, WM_CREATE, 0, 0);
    return theWindow;
}

BOOL ShowWindow(HWND window, int showMode) {
    noteCall("ShowWindow", nameOf(window), showMode);
    return FALSE;
}

BOOL UpdateWindow(HWND window) {
    noteCall("UpdateWindow", nameOf(window));
    machine.windowClass.lpfnWndProc(window, WM_PAINT, 0, 0);
    return TRUE;
}

int ShowCursor(BOOL show) {
    noteCall("ShowCursor", show);
    return machine.cursorCount += show != FALSE ? 1 : -1;
}

BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove) {
    EXPECT_TRUE(window == theWindow || window == nullptr);
    EXPECT_TRUE(first == 0 && last == 0 && remove == PM_REMOVE);
    *message = {};
    if (machine.queue.empty() && !machine.quitPosted && machine.whenIdle) machine.whenIdle();
    if (!machine.queue.empty()) {
        *message = machine.queue.front();
        machine.queue.pop_front();
        return TRUE;
    }
    if (machine.quitPosted) {
        message->message = WM_QUIT;
        message->wParam = static_cast<WPARAM>(machine.quitCode);
        return TRUE;
    }
    return FALSE;
}

BOOL TranslateMessage(const MSG*) { return FALSE; }

LRESULT DispatchMessageA(const MSG* message) {
    if (message->hwnd == nullptr) return 0; // the quit message
    return GameWindowProc(message->hwnd, message->message, message->wParam, message->lParam);
}

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    EXPECT_EQ(window, theWindow);
    noteCall("PostMessageA", message, wParam);
    machine.queue.push_back(MSG{window, message, wParam, lParam, 0, {0, 0}});
    return TRUE;
}

void PostQuitMessage(int exitCode) {
    noteCall("PostQuitMessage", exitCode);
    machine.quitPosted = true;
    machine.quitCode = exitCode;
}

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    noteCall("DefWindowProcA", nameOf(window), message, wParam, lParam);
    return 77;
}

HDC BeginPaint(HWND window, PAINTSTRUCT*) {
    noteCall("BeginPaint", nameOf(window));
    return theSurface;
}

BOOL EndPaint(HWND window, const PAINTSTRUCT*) { return noteCall("EndPaint", nameOf(window)); }

UINT_PTR SetTimer(HWND window, UINT_PTR timer, UINT period, TIMERPROC callback) {
    EXPECT_EQ(callback, nullptr);
    noteCall("SetTimer", nameOf(window), timer, period);
    return timer;
}

HWND GetFocus() { return focusWindow; }

// A key that is up carries the bit that says it was pressed since the last call.
SHORT GetAsyncKeyState(int key) {
    return machine.keysHeld.contains(key) ? static_cast<SHORT>(-0x8000) : SHORT{1};
}

int MessageBoxA(HWND owner, const char* text, const char* caption, UINT type) {
    const char* icon = type == MB_ICONHAND ? ", stop" : type == MB_ICONINFORMATION ? ", info" : "";
    EXPECT_TRUE(type == MB_OK || *icon != '\0') << type;
    note("MessageBoxA " + std::string(text) + " | " + caption + " | " + nameOf(owner) + icon);
    return 1;
}

// Display settings

BOOL EnumDisplaySettingsA(const char* device, DWORD index, DEVMODEA* mode) {
    EXPECT_EQ(device, nullptr);
    EXPECT_EQ(mode->dmSize, sizeof(DEVMODEA));
    if (index >= machine.modes.size()) return FALSE;
    *mode = machine.modes[index];
    return TRUE;
}

LONG ChangeDisplaySettingsA(DEVMODEA* mode, DWORD flags) {
    EXPECT_EQ(flags, 0U);
    if (mode == nullptr) {
        note("ChangeDisplaySettingsA restore");
        return DISP_CHANGE_SUCCESSFUL;
    }
    noteCall("ChangeDisplaySettingsA", mode->dmBitsPerPel, mode->dmPelsWidth, mode->dmPelsHeight,
             mode->dmFields);
    if (machine.switchResults.empty()) return DISP_CHANGE_SUCCESSFUL;
    const LONG result = machine.switchResults.front();
    machine.switchResults.pop_front();
    return result;
}

// Pixel format, buffers and the binding of OpenGL

HDC GetDC(HWND window) {
    noteCall("GetDC", nameOf(window));
    return theSurface;
}

int ReleaseDC(HWND window, HDC deviceContext) {
    EXPECT_EQ(deviceContext, theSurface);
    noteCall("ReleaseDC", nameOf(window));
    return 1;
}

int ChoosePixelFormat(HDC, const PIXELFORMATDESCRIPTOR* wanted) {
    PIXELFORMATDESCRIPTOR expected = {};
    expected.nSize = 40;
    expected.nVersion = 1;
    expected.dwFlags = 0x21;
    expected.cColorBits = 16;
    expected.cDepthBits = 16;
    EXPECT_EQ(std::memcmp(wanted, &expected, sizeof expected), 0);
    note("ChoosePixelFormat");
    return failureOf("ChoosePixelFormat") != 0 ? 0 : 3;
}

int DescribePixelFormat(HDC, int, UINT, PIXELFORMATDESCRIPTOR* description) {
    *description = {};
    description->dwFlags = 0x21U | (machine.formatNeedsPalette ? PFD_NEED_PALETTE : 0U);
    return 3;
}

BOOL SetPixelFormat(HDC, int format, const PIXELFORMATDESCRIPTOR* wanted) {
    EXPECT_EQ(wanted->cDepthBits, 16);
    noteCall("SetPixelFormat", format);
    return failureOf("SetPixelFormat") != 0 ? FALSE : TRUE;
}

BOOL SwapBuffers(HDC deviceContext) {
    EXPECT_EQ(deviceContext, theSurface);
    machine.drawn.emplace_back("SwapBuffers");
    return TRUE;
}

HGLRC wglCreateContext(HDC) {
    note("wglCreateContext");
    return theContext;
}

BOOL wglMakeCurrent(HDC, HGLRC context) {
    EXPECT_EQ(context, theContext);
    note("wglMakeCurrent");
    return TRUE;
}

BOOL wglDeleteContext(HGLRC context) {
    EXPECT_EQ(context, theContext);
    note("wglDeleteContext");
    return TRUE;
}

// Sound and music

BOOL PlaySoundA(const char* fileName, HMODULE module, DWORD flags) {
    EXPECT_EQ(module, nullptr);
    EXPECT_EQ(flags, 0x20001U);
    return noteCall("PlaySoundA", fileName);
}

BOOL MessageBeep(UINT type) { return noteCall("MessageBeep", type); }

namespace {

MCIERROR openMusic(MCI_OPEN_PARMSA& parameters) {
    EXPECT_STREQ(parameters.lpstrDeviceType, "sequencer");
    noteCall("MCI open", parameters.lpstrElementName);
    const int error = failureOf("MCI_OPEN");
    if (error == 0) machine.devices.insert(parameters.wDeviceID = ++machine.lastDevice);
    return static_cast<MCIERROR>(error);
}

MCIERROR askMusic(MCIDEVICEID device, const MCI_STATUS_PARMS& parameters) {
    EXPECT_EQ(parameters.dwItem, MCI_SEQ_STATUS_PORT);
    noteCall("MCI status", device);
    return static_cast<MCIERROR>(failureOf("MCI_STATUS"));
}

MCIERROR playMusic(MCIDEVICEID device, const MCI_PLAY_PARMS& parameters) {
    EXPECT_EQ(parameters.dwCallback, reinterpret_cast<DWORD_PTR>(theWindow));
    noteCall("MCI play", device);
    return static_cast<MCIERROR>(failureOf("MCI_PLAY"));
}

} // namespace

MCIERROR mciSendCommandA(MCIDEVICEID device, UINT command, DWORD_PTR flags, DWORD_PTR parameters) {
    const bool isOpen = machine.devices.contains(device);
    EXPECT_TRUE(isOpen || command == MCI_OPEN || command == MCI_CLOSE) << device;
    switch (command) {
    case MCI_OPEN:
        EXPECT_EQ(flags, 0x2200U);
        return openMusic(*reinterpret_cast<MCI_OPEN_PARMSA*>(parameters));
    case MCI_STATUS:
        EXPECT_EQ(flags, MCI_STATUS_ITEM);
        return askMusic(device, *reinterpret_cast<MCI_STATUS_PARMS*>(parameters));
    case MCI_PLAY:
        EXPECT_EQ(flags, MCI_NOTIFY);
        return playMusic(device, *reinterpret_cast<MCI_PLAY_PARMS*>(parameters));
    default:
        EXPECT_EQ(command, MCI_CLOSE);
        EXPECT_TRUE(flags == 0 && parameters == 0);
        noteCall(isOpen ? "MCI close" : "MCI close stale", device);
        machine.devices.erase(device);
        return isOpen ? 0 : 257;
    }
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
    EXPECT_TRUE(access == GENERIC_READ && share == 0 && creation == OPEN_EXISTING &&
                attributes == FILE_ATTRIBUTE_NORMAL);
    noteCall("CreateFileA", fileName);
    std::FILE* file = std::fopen(fileName, "rb");
    if (file == nullptr) return INVALID_HANDLE_VALUE;
    ++machine.openFiles;
    return file;
}

BOOL ReadFile(HANDLE file, void* buffer, DWORD wanted, DWORD* got, OVERLAPPED*) {
    if (failureOf("ReadFile") != 0) return FALSE;
    *got = static_cast<DWORD>(std::fread(buffer, 1, wanted, static_cast<std::FILE*>(file)));
    return TRUE;
}

BOOL CloseHandle(HANDLE file) {
    std::fclose(static_cast<std::FILE*>(file));
    --machine.openFiles;
    return failureOf("CloseHandle") != 0 ? FALSE : TRUE;
}

// Errors in the system's words

DWORD GetLastError() { return 1234; }

DWORD FormatMessageA(DWORD flags, const void*, DWORD error, DWORD language, char* buffer, DWORD,
                     void*) {
    EXPECT_TRUE(flags == 0x1100 && error == 1234 && language == 0x400);
    if (failureOf("FormatMessageA") != 0) return 0;
    char* text = new char[16]{"in other words"};
    std::memcpy(buffer, &text, sizeof text);
    ++machine.systemTexts;
    return static_cast<DWORD>(std::strlen(text));
}

HLOCAL LocalFree(HLOCAL memory) {
    if (memory != nullptr) --machine.systemTexts;
    delete[] static_cast<char*>(memory);
    return nullptr;
}
