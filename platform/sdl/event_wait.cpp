#include "platform/sdl/event_wait.h"

#include <SDL.h>

bool waitForEvent(int milliseconds) {
    constexpr Uint32 interval = 5; // milliseconds
    const Uint64 end = SDL_GetTicks64() + static_cast<Uint64>(milliseconds);
    for (;;) {
        SDL_PumpEvents();
        // The sentinel is no event of the player's: SDL leaves it in the queue to mark a place.
        if (SDL_HasEvents(SDL_FIRSTEVENT, SDL_POLLSENTINEL - 1) == SDL_TRUE) { return true; }
        if (SDL_GetTicks64() >= end) { return false; }
        SDL_Delay(interval);
    }
}
