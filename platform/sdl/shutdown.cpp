#include "platform/sdl/shutdown.h"

#include <SDL.h>

#include "platform/sdl/sequencer.h"
#include "platform/sdl/sound.h"
#include "platform/sdl/surface.h"
#include "platform/sdl/window.h"

void shutDown() {
    stopSequencer();
    stopSound();
    stopSurface();
    closeWindow();
    SDL_Quit();
}
