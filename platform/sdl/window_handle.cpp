#include "platform/sdl/window_handle.h"

WindowHandle gameWindow;

HWND currentWindow() {
    return gameWindow.sdl != nullptr ? &gameWindow : nullptr;
}

bool needsPaint() {
    return gameWindow.needsPaint;
}

LRESULT callWindowProcedure(UINT message, WPARAM wParam, LPARAM lParam) {
    return gameWindow.procedure(&gameWindow, message, wParam, lParam);
}

std::uint64_t uptime() {
    return SDL_GetTicks64();
}

bool isWindowVisible() {
    constexpr Uint32 notVisible = SDL_WINDOW_HIDDEN | SDL_WINDOW_MINIMIZED;
    return gameWindow.sdl != nullptr && (SDL_GetWindowFlags(gameWindow.sdl) & notVisible) == 0;
}
