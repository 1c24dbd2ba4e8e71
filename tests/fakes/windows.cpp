// The functions of platform/windows_api.h for the tests. Arguments that are the same
// in every call are checked here, for all tests.
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

// Records the call. Returns the answer.
template <class Answer, class... Values>
Answer noted(Answer answer, const char* function, const Values&... values) {
    std::ostringstream line;
    line << function;
    ((line << ' ' << values), ...);
    machine.lines.push_back(line.str());
    return answer;
}

} // namespace

const HWND theWindow = handle<HWND>(0x100);
const HWND focusWindow = handle<HWND>(0x200);
const HDC theSurface = handle<HDC>(0x300);

// Defines a function that does nothing else.
#define ANSWERS(type, function, parameters, answer)                                                \
    type function parameters {                                                                     \
        return answer;                                                                             \
    }

// Windows and messages

ANSWERS(HICON, LoadIconA, (HINSTANCE, const char*), nullptr)
ANSWERS(HCURSOR, LoadCursorA, (HINSTANCE, const char*), handle<HCURSOR>(0x500))
ANSWERS(HWND, GetFocus, (), focusWindow)
ANSWERS(DWORD, GetLastError, (), 1234)
ANSWERS(BOOL, ShowWindow, (HWND, int mode), noted(FALSE, "ShowWindow", mode))
ANSWERS(int, ShowCursor, (BOOL show), noted(show != FALSE ? 0 : -1, "ShowCursor", show))
ANSWERS(HDC, BeginPaint, (HWND, PAINTSTRUCT*), noted(theSurface, "BeginPaint"))
ANSWERS(BOOL, EndPaint, (HWND, const PAINTSTRUCT*), noted(TRUE, "EndPaint"))
ANSWERS(BOOL, MessageBeep, (UINT type), noted(TRUE, "MessageBeep", type))

ATOM RegisterClassA(const WNDCLASSA* windowClass) {
    EXPECT_TRUE(windowClass->lpfnWndProc == GameWindowProc);
    EXPECT_TRUE(windowClass->hCursor == handle<HCURSOR>(0x500));
    EXPECT_TRUE(windowClass->hbrBackground == handle<HBRUSH>(6));
    EXPECT_STREQ(windowClass->lpszMenuName, "Glorbix");
    machine.windowClass = *windowClass;
    return noted(!fails("RegisterClassA"), "RegisterClassA", windowClass->lpszClassName);
}

HWND CreateWindowExA(DWORD extendedStyle, const char* className, const char* title, DWORD style,
                     int x, int y, int width, int height, HWND parent, HMENU menu, HINSTANCE,
                     void*) {
    EXPECT_TRUE(parent == nullptr && menu == nullptr);
    noted(0, "CreateWindowExA", extendedStyle, className, title, style, x, y, width, height);
    if (fails("CreateWindowExA")) { return nullptr; }
    machine.windowClass.lpfnWndProc(theWindow, WM_CREATE, 0, 0);
    return theWindow;
}

BOOL UpdateWindow(HWND window) {
    noted(0, "UpdateWindow");
    return machine.windowClass.lpfnWndProc(window, WM_PAINT, 0, 0) == 0;
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

BOOL TranslateMessage(const MSG* message) {
    machine.translated = message->message;
    return FALSE;
}
LRESULT DispatchMessageA(const MSG* message) {
    EXPECT_EQ(machine.translated, message->message);
    if (message->hwnd == nullptr) { return 0; } // the quit message
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
    return noted(77, "DefWindowProcA", window == theWindow, message, wParam, lParam);
}

UINT_PTR SetTimer(HWND, UINT_PTR timer, UINT period, TIMERPROC) {
    return noted(timer, "SetTimer", timer, period);
}

SHORT GetAsyncKeyState(int key) {
    return machine.keysHeld.contains(key) ? static_cast<SHORT>(-0x8000) : SHORT{1}; // was pressed
}

int MessageBoxA(HWND owner, const char* text, const char* caption, UINT type) {
    const char* icon = type == MB_ICONHAND ? ", stop" : type == MB_ICONINFORMATION ? ", info" : "";
    EXPECT_TRUE(type == MB_OK || *icon != '\0') << type;
    const std::string name = owner == theWindow     ? "window"
                             : owner == focusWindow ? "focus"
                                                    : "nobody";
    return noted(1, "MessageBoxA", text, "|", caption, "|", name + icon);
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
    machine.switchResults.push_back(0);
    const LONG result = machine.switchResults.front();
    machine.switchResults.pop_front();
    return noted(result, "ChangeDisplaySettingsA", mode->dmBitsPerPel, mode->dmPelsWidth,
                 mode->dmPelsHeight, mode->dmFields);
}

// Pixel format, buffers and the binding of OpenGL

HDC GetDC(HWND window) {
    EXPECT_EQ(window, theWindow);
    return noted(theSurface, "GetDC");
}
int ReleaseDC(HWND window, HDC deviceContext) {
    EXPECT_TRUE(window == theWindow && deviceContext == theSurface);
    return noted(1, "ReleaseDC");
}

int ChoosePixelFormat(HDC, const PIXELFORMATDESCRIPTOR* wanted) {
    EXPECT_TRUE(wanted->nSize == sizeof *wanted && wanted->nVersion == 1);
    EXPECT_TRUE(wanted->dwFlags == 0x21 && wanted->iPixelType == PFD_TYPE_RGBA);
    EXPECT_TRUE(wanted->cColorBits == 16 && wanted->cDepthBits == 16);
    return noted(!fails("ChoosePixelFormat") ? 3 : 0, "ChoosePixelFormat");
}

int DescribePixelFormat(HDC, int format, UINT size, PIXELFORMATDESCRIPTOR* description) {
    EXPECT_TRUE(format == 3 && size == sizeof *description);
    *description = {};
    description->dwFlags = 0x21U | (machine.formatNeedsPalette ? PFD_NEED_PALETTE : 0U);
    return 3;
}

BOOL SetPixelFormat(HDC, int format, const PIXELFORMATDESCRIPTOR*) {
    return noted(!fails("SetPixelFormat"), "SetPixelFormat", format);
}

BOOL SwapBuffers(HDC deviceContext) {
    EXPECT_EQ(deviceContext, theSurface);
    machine.drawn.emplace_back("SwapBuffers");
    return TRUE;
}

HGLRC wglCreateContext(HDC) {
    machine.context = handle<HGLRC>(0x400);
    return noted(machine.context, "wglCreateContext");
}
BOOL wglMakeCurrent(HDC, HGLRC context) {
    EXPECT_EQ(context, machine.context);
    return noted(TRUE, "wglMakeCurrent");
}
BOOL wglDeleteContext(HGLRC context) {
    EXPECT_EQ(context, machine.context);
    machine.context = nullptr;
    return noted(TRUE, "wglDeleteContext");
}

// Sound and music

BOOL PlaySoundA(const char* fileName, HMODULE module, DWORD flags) {
    EXPECT_TRUE(module == nullptr && flags == 0x20001);
    return noted(TRUE, "PlaySoundA", fileName);
}

MCIERROR mciSendCommandA(MCIDEVICEID device, UINT command, DWORD_PTR flags, DWORD_PTR parameters) {
    const bool isOpen = machine.devices.contains(device);
    EXPECT_TRUE(isOpen || command == MCI_OPEN || command == MCI_CLOSE) << device;
    if (command == MCI_CLOSE) {
        machine.devices.erase(device);
        if (isOpen && device == machine.playingDevice) { // the system says so
            machine.playingDevice = 0;
            machine.queue.push_back(MSG{theWindow,
                                        MM_MCINOTIFY,
                                        MCI_NOTIFY_ABORTED,
                                        static_cast<LPARAM>(device),
                                        0,
                                        {0, 0}});
        }
        return noted(isOpen ? 0U : 257U, isOpen ? "MCI close" : "MCI close stale", device);
    }
    if (command == MCI_OPEN) {
        auto& open = *reinterpret_cast<MCI_OPEN_PARMSA*>(parameters);
        EXPECT_TRUE(flags == 0x2200U && std::string("sequencer") == open.lpstrDeviceType);
        noted(0, "MCI open", std::string(open.lpstrElementName)); // the record is packed
        if (fails("MCI_OPEN")) { return 277; }
        machine.devices.insert(open.wDeviceID = ++machine.lastDevice);
        return 0;
    }
    if (command == MCI_STATUS) {
        EXPECT_TRUE(reinterpret_cast<MCI_STATUS_PARMS*>(parameters)->dwItem == MCI_SEQ_STATUS_PORT);
        return noted(fails("MCI_STATUS") ? 277U : 0U, "MCI status", device);
    }
    const auto& play = *reinterpret_cast<MCI_PLAY_PARMS*>(parameters);
    EXPECT_TRUE(command == MCI_PLAY && flags == MCI_NOTIFY);
    EXPECT_TRUE(play.dwCallback == reinterpret_cast<DWORD_PTR>(theWindow));
    if (fails("MCI_PLAY")) { return noted(277U, "MCI play", device); }
    machine.playingDevice = device;
    return noted(0U, "MCI play", device);
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
    noted(0, "CreateFileA", fileName);
    std::FILE* file = std::fopen(fileName, "rb");
    machine.openFiles += file != nullptr ? 1 : 0;
    return file != nullptr ? file : INVALID_HANDLE_VALUE;
}

BOOL ReadFile(HANDLE file, void* buffer, DWORD wanted, DWORD* got, OVERLAPPED*) {
    *got = static_cast<DWORD>(std::fread(buffer, 1, wanted, static_cast<std::FILE*>(file)));
    return TRUE;
}

BOOL CloseHandle(HANDLE file) {
    std::fclose(static_cast<std::FILE*>(file));
    --machine.openFiles;
    return !fails("CloseHandle");
}

// Errors in the system's words

DWORD FormatMessageA(DWORD flags, const void*, DWORD error, DWORD language, char* buffer, DWORD,
                     va_list*) {
    EXPECT_TRUE(flags == 0x1100 && error == 1234 && language == 0x400);
    if (fails("FormatMessageA")) { return 0; }
    char* text = new char[16]{"in other words"};
    std::memcpy(buffer, static_cast<const void*>(&text), sizeof text);
    ++machine.systemTexts;
    return static_cast<DWORD>(std::strlen(text));
}

HLOCAL LocalFree(HLOCAL memory) {
    if (memory != nullptr) { --machine.systemTexts; }
    delete[] static_cast<char*>(memory);
    return nullptr;
}
