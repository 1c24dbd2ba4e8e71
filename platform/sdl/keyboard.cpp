#include "platform/sdl/keyboard.h"

#include "platform/sdl/key_map.h"
#include "platform/windows_api.h"

int virtualKeyOf(const SDL_Keysym& pressed) {
    return virtualKeyFor(pressed.scancode, pressed.sym, (pressed.mod & KMOD_NUM) != 0);
}

// SDL lets go of every key when the window loses the focus, so nothing is kept here.
SHORT WINAPI GetAsyncKeyState(int key) {
    constexpr auto held = static_cast<SHORT>(0x8000);
    if (!SDL_WasInit(SDL_INIT_VIDEO)) { return 0; }
    int count = 0;
    const Uint8* down = SDL_GetKeyboardState(&count);
    const bool numberLock = (SDL_GetModState() & KMOD_NUM) != 0;
    for (int i = SDL_SCANCODE_A; i < count; ++i) { // the first that names a key
        const auto place = static_cast<SDL_Scancode>(i);
        if (down[i] && virtualKeyFor(place, SDL_GetKeyFromScancode(place), numberLock) == key) {
            return held;
        }
    }
    return 0;
}
