#include "platform/sdl/video.h"

#include <string>

#include <SDL.h>

#include "platform/common/errors.h"
#include "platform/sdl/gamepad.h"

namespace {

// By this name a desktop finds the icon and the entry of the window. SDL 2 takes it from the
// environment; on top of SDL 3 it is a hint.
void setApplicationId() {
    SDL_setenv("SDL_VIDEO_X11_WMCLASS", GLORBIX_APPLICATION_ID, 0);
    SDL_setenv("SDL_VIDEO_WAYLAND_WMCLASS", GLORBIX_APPLICATION_ID, 0);
    SDL_SetHint("SDL_APP_ID", GLORBIX_APPLICATION_ID);
}

void setHints() {
    setApplicationId();
    SDL_SetHint(SDL_HINT_APP_NAME, "Glorbix");
    SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
    // The close button then sends one request, not two.
    SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
}

// Without a desktop SDL falls back to a driver that shows nothing. That is an error unless the
// player has chosen the driver by name.
bool isDriverAcceptable() {
    return isDisplayVisible() || SDL_GetHint(SDL_HINT_VIDEODRIVER) != nullptr;
}

// Message boxes are painted without OpenGL. On Wayland SDL can paint with OpenGL only.
void setPaintHint() {
    if (std::string(SDL_GetCurrentVideoDriver()) != "wayland") {
        SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    }
}

bool fail(const std::string& reason) {
    setFatalError("There is no display to play on: " + reason + ".");
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    return false;
}

bool initVideo() {
    setHints();
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) { return fail(SDL_GetError()); }
    if (!isDriverAcceptable()) { return fail("neither Wayland nor X11 answers"); }
    setPaintHint();
    // SDL starts text input by itself; an input method would then keep the letters of the name
    // entry from the game.
    SDL_StopTextInput();
    startGamepads();
    return true;
}

} // namespace

bool startVideo() {
    static const bool started = initVideo();
    return started;
}

bool isDisplayVisible() {
    const std::string driver = SDL_GetCurrentVideoDriver();
    return driver != "offscreen" && driver != "dummy";
}
