#include "platform/sdl/machine.h"

#include <string>

#include <SDL.h>

#include "platform/sdl/errors.h"
#include "platform/sdl/sequencer.h"
#include "platform/sdl/sound.h"
#include "platform/sdl/surface.h"
#include "platform/sdl/window.h"

namespace {

void setHints() {
    SDL_SetHint(SDL_HINT_APP_NAME, "Glorbix");
    SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
    SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE,
                "0"); // the close button is one request, not two
}

// Without a display SDL falls back to one that nobody sees, which counts only when asked for.
bool isDisplayWanted() {
    return isDisplayVisible() || SDL_GetHint(SDL_HINT_VIDEODRIVER);
}

// Message boxes are painted without OpenGL where SDL knows how.
void setPaintHint() {
    if (std::string(SDL_GetCurrentVideoDriver()) != "wayland") {
        SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    }
}

bool fail(const std::string& why) {
    setFatalError("There is no display to play on: " + why + ".");
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    return false;
}

bool initVideo() {
    setHints();
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) { return fail(SDL_GetError()); }
    if (!isDisplayWanted()) { return fail("neither Wayland nor X11 answers"); }
    setPaintHint();
    SDL_StopTextInput(); // an input method would keep the letters of the name entry to itself
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

void shutDown() {
    stopSequencer();
    stopSound();
    stopSurface();
    closeWindow();
    SDL_Quit();
}
