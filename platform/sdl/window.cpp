#include "platform/sdl/window.h"

#include <string>

#include "platform/sdl/display.h"
#include "platform/sdl/errors.h"
#include "platform/sdl/machine.h"
#include "platform/sdl/surface.h"

namespace {

constexpr int frameAllowance = 48; // pixels for a title bar and borders around a window

std::string className;
WNDPROC classProcedure = nullptr;
WindowHandle window;
int cursorCount = 0;

// Counted from 0; the first while there is no window.
int displayOfWindow() {
    const int display = window.sdl ? SDL_GetWindowDisplayIndex(window.sdl) : 0;
    return display < 0 ? 0 : display;
}

// Twice the display's size where the desktop has the room.
int windowScale() {
    SDL_Rect room = {};
    if (SDL_GetDisplayUsableBounds(displayOfWindow(), &room) != 0) { return 1; }
    const bool fits =
        room.w >= 2 * displayWidth + frameAllowance && room.h >= 2 * displayHeight + frameAllowance;
    return fits ? 2 : 1;
}

// Without OpenGL a plain window still opens, so that the game can say in a box what is missing.
void openWindow(const char* title) {
    prepareSurfaceAttributes();
    const Uint32 flags = SDL_WINDOW_HIDDEN | SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI;
    const int scale = windowScale();
    const auto open = [&](Uint32 kind) {
        return SDL_CreateWindow(title, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                displayWidth * scale, displayHeight * scale, flags | kind);
    };
    window.sdl = open(SDL_WINDOW_OPENGL);
    if (window.sdl) { return; }
    window.glFailure = SDL_GetError();
    window.sdl = open(0);
}

// Where no window manager answers, nothing but its size makes a window cover the screen.
void coverDesktop() {
    SDL_Rect desktop = {};
    if (SDL_GetDisplayBounds(displayOfWindow(), &desktop) != 0) { return; }
    SDL_SetWindowPosition(window.sdl, desktop.x, desktop.y);
    SDL_SetWindowSize(window.sdl, desktop.w, desktop.h);
}

void becomeWindow() {
    const int scale = windowScale();
    SDL_SetWindowSize(window.sdl, displayWidth * scale, displayHeight * scale);
    const auto display = static_cast<unsigned>(displayOfWindow());
    const auto centre = static_cast<int>(SDL_WINDOWPOS_CENTERED_DISPLAY(display));
    SDL_SetWindowPosition(window.sdl, centre, centre);
}

void applyFullScreen(bool on) {
    if (on) { coverDesktop(); }
    SDL_SetWindowFullscreen(window.sdl, on ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0);
    if (!on) { becomeWindow(); }
}

HWND showLastError() {
    MessageBoxA(nullptr, lastErrorText().c_str(), "Error", MB_ICONHAND);
    return nullptr;
}

LRESULT send(UINT message) {
    return window.procedure(&window, message, 0, 0);
}

void showSdlWindow() {
    if (fullScreenWanted()) { coverDesktop(); }
    SDL_ShowWindow(window.sdl);
    if (fullScreenWanted()) { applyFullScreen(true); }
    SDL_RaiseWindow(window.sdl);
    window.visible = true;
    window.needsPaint = true;
}

} // namespace

HWND currentWindow() {
    return window.sdl ? &window : nullptr;
}

bool isWindowVisible() {
    constexpr Uint32 unseen = SDL_WINDOW_HIDDEN | SDL_WINDOW_MINIMIZED;
    return window.sdl && (SDL_GetWindowFlags(window.sdl) & unseen) == 0;
}

void coverScreen() {
    if (window.sdl && window.visible) { applyFullScreen(true); }
}

// The game leaves the display when it ends: hiding the window shows the desktop without a flash of
// a smaller window.
void uncoverScreen() {
    if (!window.sdl || !window.visible) { return; }
    SDL_HideWindow(window.sdl);
    applyFullScreen(false);
    window.visible = false;
}

void toggleFullScreen() {
    if (!window.sdl) { return; }
    const bool on = (SDL_GetWindowFlags(window.sdl) & SDL_WINDOW_FULLSCREEN_DESKTOP) != 0;
    applyFullScreen(!on);
}

void closeWindow() {
    if (!window.sdl) { return; }
    stopSurface();
    SDL_DestroyWindow(window.sdl);
    window = {};
}

void destroyWindow() {
    if (!window.sdl) { return; }
    send(WM_DESTROY);
    closeWindow();
}

HICON WINAPI LoadIconA(HINSTANCE, const char*) {
    return nullptr; // the program carries no resources
}

HCURSOR WINAPI LoadCursorA(HINSTANCE, const char* name) {
    if (name != IDC_ARROW || !startVideo()) { return nullptr; }
    return reinterpret_cast<HCURSOR>(SDL_GetDefaultCursor());
}

ATOM WINAPI RegisterClassA(const WNDCLASSA* windowClass) {
    if (!windowClass || !windowClass->lpszClassName || !windowClass->lpfnWndProc) { return 0; }
    if (classProcedure) { return 0; }
    className = windowClass->lpszClassName;
    classProcedure = windowClass->lpfnWndProc;
    return 1;
}

HWND WINAPI CreateWindowExA(DWORD, const char* name, const char* title, DWORD, int, int, int, int,
                            HWND, HMENU, HINSTANCE, void*) {
    if (!classProcedure || !name || name != className || window.sdl) {
        setLastError("The window has no registered class, or is there already.");
        return nullptr;
    }
    if (!startVideo()) { return showLastError(); }
    window = {};
    window.procedure = classProcedure;
    openWindow(title ? title : "");
    if (!window.sdl) {
        setFatalError(std::string("No window could be opened: ") + SDL_GetError() + ".");
        return showLastError();
    }
    if (send(WM_CREATE) == -1) { closeWindow(); }
    return currentWindow();
}

BOOL WINAPI ShowWindow(HWND handle, int) {
    if (!handle || handle != currentWindow()) { return FALSE; }
    if (window.visible) { return TRUE; }
    showSdlWindow();
    if (!window.focused) {
        window.focused = true;
        send(WM_SETFOCUS);
    }
    return FALSE;
}

BOOL WINAPI UpdateWindow(HWND handle) {
    if (!handle || handle != currentWindow()) { return FALSE; }
    if (window.needsPaint) { send(WM_PAINT); }
    return TRUE;
}

int WINAPI ShowCursor(BOOL show) {
    cursorCount += show ? 1 : -1;
    if (SDL_WasInit(SDL_INIT_VIDEO)) {
        SDL_ShowCursor(cursorCount >= 0 ? SDL_ENABLE : SDL_DISABLE);
    }
    return cursorCount;
}

HDC WINAPI BeginPaint(HWND handle, PAINTSTRUCT* paint) {
    if (!handle || handle != currentWindow() || !paint) { return nullptr; }
    window.needsPaint = false;
    *paint = {};
    paint->hdc = &window.deviceContext;
    paint->rcPaint = {0, 0, displayWidth, displayHeight};
    return paint->hdc;
}

BOOL WINAPI EndPaint(HWND, const PAINTSTRUCT*) {
    return TRUE;
}

HWND WINAPI GetFocus() {
    return window.focused ? currentWindow() : nullptr;
}

LRESULT WINAPI DefWindowProcA(HWND handle, UINT message, WPARAM, LPARAM) {
    if (!handle || handle != currentWindow()) { return 0; }
    if (message == WM_CLOSE) { destroyWindow(); }
    if (message == WM_PAINT) { window.needsPaint = false; }
    return 0;
}
