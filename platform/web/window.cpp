// The game's window. The page is there before it and stays after it, so opening and closing only
// change the record.

#include <string>

#include <emscripten.h>

#include "platform/common/errors.h"
#include "platform/common/provider.h"
#include "platform/display_mode.h"
#include "platform/web/page_calls.h"
#include "platform/web/window_handle.h"
#include "platform/windows_api.h"

WindowHandle gameWindow;

namespace {

std::string className;
WNDPROC classProcedure = nullptr;
int cursorCount = 0;

bool isGameWindow(HWND handle) {
    return handle != nullptr && handle == currentWindow();
}

LRESULT send(UINT message) {
    return callWindowProcedure(message, 0, 0);
}

} // namespace

HWND currentWindow() {
    return gameWindow.open ? &gameWindow : nullptr;
}

bool needsPaint() {
    return gameWindow.needsPaint;
}

std::uint64_t uptime() {
    return static_cast<std::uint64_t>(emscripten_get_now());
}

HICON WINAPI LoadIconA(HINSTANCE, const char*) {
    return nullptr; // the page has an icon of its own
}

HCURSOR WINAPI LoadCursorA(HINSTANCE, const char*) {
    return nullptr;
}

ATOM WINAPI RegisterClassA(const WNDCLASSA* windowClass) {
    if (windowClass == nullptr || windowClass->lpszClassName == nullptr ||
        windowClass->lpfnWndProc == nullptr || classProcedure != nullptr) {
        return 0;
    }
    className = windowClass->lpszClassName;
    classProcedure = windowClass->lpfnWndProc;
    return 1;
}

HWND WINAPI CreateWindowExA(DWORD, const char* name, const char*, DWORD, int, int, int, int, HWND,
                            HMENU, HINSTANCE, void*) {
    if (classProcedure == nullptr || name == nullptr || name != className || gameWindow.open) {
        setLastError("The window's class is not registered, or the window is open already.");
        return nullptr;
    }
    gameWindow = {};
    gameWindow.open = true;
    gameWindow.procedure = classProcedure;
    if (send(WM_CREATE) == -1) { gameWindow = {}; }
    return currentWindow();
}

BOOL WINAPI ShowWindow(HWND handle, int) {
    if (!isGameWindow(handle)) { return FALSE; }
    if (gameWindow.shown) { return TRUE; }
    gameWindow.shown = true;
    gameWindow.needsPaint = true;
    if (pageHasFocus() != 0) {
        gameWindow.focused = true;
        send(WM_SETFOCUS);
    }
    return FALSE;
}

BOOL WINAPI UpdateWindow(HWND handle) {
    if (!isGameWindow(handle)) { return FALSE; }
    if (gameWindow.needsPaint) { send(WM_PAINT); }
    return TRUE;
}

// The style of the page hides the cursor over the picture.
int WINAPI ShowCursor(BOOL show) {
    cursorCount += show != FALSE ? 1 : -1;
    return cursorCount;
}

HDC WINAPI BeginPaint(HWND handle, PAINTSTRUCT* paint) {
    if (!isGameWindow(handle) || paint == nullptr) { return nullptr; }
    gameWindow.needsPaint = false;
    *paint = {};
    paint->hdc = &gameWindow.deviceContext;
    paint->rcPaint = {0, 0, screenWidth, screenHeight};
    return paint->hdc;
}

BOOL WINAPI EndPaint(HWND, const PAINTSTRUCT*) {
    return TRUE;
}

HWND WINAPI GetFocus() {
    return gameWindow.focused ? currentWindow() : nullptr;
}

LRESULT WINAPI DefWindowProcA(HWND handle, UINT message, WPARAM, LPARAM) {
    if (!isGameWindow(handle)) { return 0; }
    if (message == WM_CLOSE) {
        send(WM_DESTROY);
        gameWindow = {};
    }
    if (message == WM_PAINT) { gameWindow.needsPaint = false; }
    return 0;
}
