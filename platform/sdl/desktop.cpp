#include "platform/sdl/desktop.h"

#include <algorithm>

#include "platform/display_mode.h"

int displayOf(SDL_Window* window) {
    return window != nullptr ? std::max(SDL_GetWindowDisplayIndex(window), 0) : 0;
}

SDL_Rect usableArea(int display) {
    SDL_Rect area = {};
    if (SDL_GetDisplayUsableBounds(display, &area) == 0) { return area; }
    return {0, 0, screenWidth, screenHeight};
}

int centreOf(int display) {
    return static_cast<int>(SDL_WINDOWPOS_CENTERED_DISPLAY(static_cast<unsigned>(display)));
}
