#include "platform/sdl/full_screen.h"

#include <SDL.h>

#include "platform/display_mode.h"
#include "platform/sdl/desktop.h"
#include "platform/sdl/window_handle.h"

namespace {

bool modeIsSet = false;

// Without a window manager only its size makes a window cover the screen.
void coverDesktop() {
    SDL_Rect desktop = {};
    if (SDL_GetDisplayBounds(displayOf(gameWindow.sdl), &desktop) != 0) { return; }
    SDL_SetWindowPosition(gameWindow.sdl, desktop.x, desktop.y);
    SDL_SetWindowSize(gameWindow.sdl, desktop.w, desktop.h);
}

void centreOrdinaryWindow() {
    const WindowSize size = windowedSize();
    SDL_SetWindowSize(gameWindow.sdl, size.width, size.height);
    const int centre = centreOf(displayOf(gameWindow.sdl));
    SDL_SetWindowPosition(gameWindow.sdl, centre, centre);
}

void applyFullScreen(bool on) {
    if (on) { coverDesktop(); }
    SDL_SetWindowFullscreen(gameWindow.sdl, on ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0);
    if (!on) { centreOrdinaryWindow(); }
}

// The game resets the mode when it ends. The window is hidden, so that the desktop appears without
// a smaller window in between. Its size is set when it is shown again; before that SDL 3 cannot.
void hideWindow() {
    SDL_HideWindow(gameWindow.sdl);
    gameWindow.shown = false;
}

} // namespace

void setFullScreen(bool on) {
    modeIsSet = on;
    if (gameWindow.sdl == nullptr || !gameWindow.shown) { return; }
    if (on) {
        applyFullScreen(true);
    } else {
        hideWindow();
    }
}

void showOnDesktop() {
    if (modeIsSet) { coverDesktop(); }
    SDL_ShowWindow(gameWindow.sdl);
    applyFullScreen(modeIsSet);
    SDL_RaiseWindow(gameWindow.sdl);
    gameWindow.shown = true;
    gameWindow.needsPaint = true;
}

void toggleFullScreen() {
    if (gameWindow.sdl == nullptr) { return; }
    const Uint32 flags = SDL_GetWindowFlags(gameWindow.sdl);
    applyFullScreen((flags & SDL_WINDOW_FULLSCREEN_DESKTOP) == 0);
}

WindowSize windowedSize() {
    const SDL_Rect area = usableArea(displayOf(gameWindow.sdl));
    const bool fitsTwice =
        area.w >= 2 * screenWidth + frameAllowance && area.h >= 2 * screenHeight + frameAllowance;
    const int scale = fitsTwice ? 2 : 1;
    return {scale * screenWidth, scale * screenHeight};
}
