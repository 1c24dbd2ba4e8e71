#include "platform/sdl/window.h"

#include <string>

#include <SDL.h>

#include "platform/common/errors.h"
#include "platform/display_mode.h"
#include "platform/sdl/full_screen.h"
#include "platform/sdl/surface.h"
#include "platform/sdl/video.h"
#include "platform/sdl/window_handle.h"
#include "platform/sdl/x11_errors.h"
#include "platform/windows_api.h"

namespace {

std::string className;
WNDPROC classProcedure = nullptr;
int cursorCount = 0;

bool isGameWindow(HWND handle) {
    return handle != nullptr && handle == currentWindow();
}

// Without OpenGL an ordinary window still opens, so that the game can show in a message box what is
// missing.
void openWindow(const char* title) {
    const XErrorsIgnored ignored;
    prepareSurfaceAttributes();
    const Uint32 flags = SDL_WINDOW_HIDDEN | SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI;
    const WindowSize size = windowedSize();
    const auto open = [&](Uint32 kind) {
        return SDL_CreateWindow(title, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, size.width,
                                size.height, flags | kind);
    };
    gameWindow.sdl = open(SDL_WINDOW_OPENGL);
    if (gameWindow.sdl != nullptr) { return; }
    gameWindow.glFailure = SDL_GetError();
    gameWindow.sdl = open(0);
}

HWND showLastError() {
    MessageBoxA(nullptr, lastErrorText().c_str(), nullptr, MB_ICONHAND);
    return nullptr;
}

LRESULT send(UINT message) {
    return gameWindow.procedure(&gameWindow, message, 0, 0);
}

// What a system does on WM_CLOSE when the game leaves it to DefWindowProcA.
void destroyWindow() {
    send(WM_DESTROY);
    closeWindow();
}

} // namespace

void closeWindow() {
    if (gameWindow.sdl == nullptr) { return; }
    stopSurface();
    SDL_DestroyWindow(gameWindow.sdl);
    gameWindow = {};
}

HICON WINAPI LoadIconA(HINSTANCE, const char*) {
    return nullptr; // the program has no resources
}

HCURSOR WINAPI LoadCursorA(HINSTANCE, const char* name) {
    if (name != IDC_ARROW || !startVideo()) { return nullptr; }
    return reinterpret_cast<HCURSOR>(SDL_GetDefaultCursor());
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

HWND WINAPI CreateWindowExA(DWORD, const char* name, const char* title, DWORD, int, int, int, int,
                            HWND, HMENU, HINSTANCE, void*) {
    if (classProcedure == nullptr || name == nullptr || name != className ||
        gameWindow.sdl != nullptr) {
        setLastError("The window's class is not registered, or the window is open already.");
        return nullptr;
    }
    if (!startVideo()) { return showLastError(); }
    gameWindow = {};
    gameWindow.procedure = classProcedure;
    openWindow(title != nullptr ? title : "");
    if (gameWindow.sdl == nullptr) {
        setFatalError(std::string("No window could be opened: ") + SDL_GetError() + ".");
        return showLastError();
    }
    if (send(WM_CREATE) == -1) { closeWindow(); }
    return currentWindow();
}

BOOL WINAPI ShowWindow(HWND handle, int) {
    if (!isGameWindow(handle)) { return FALSE; }
    if (gameWindow.shown) { return TRUE; }
    showOnDesktop();
    gameWindow.hasKeyboard = true;
    if (!gameWindow.focused) {
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

int WINAPI ShowCursor(BOOL show) {
    cursorCount += show != FALSE ? 1 : -1;
    if (SDL_WasInit(SDL_INIT_VIDEO) != 0) {
        SDL_ShowCursor(cursorCount >= 0 ? SDL_ENABLE : SDL_DISABLE);
    }
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
    if (message == WM_CLOSE) { destroyWindow(); }
    if (message == WM_PAINT) { gameWindow.needsPaint = false; }
    return 0;
}
