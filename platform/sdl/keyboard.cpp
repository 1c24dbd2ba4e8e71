#include "platform/sdl/keyboard.h"

#include "platform/sdl/gamepad.h"
#include "platform/sdl/key_map.h"
#include "platform/windows_api.h"

int virtualKeyOf(const SDL_Keysym& pressed) {
    return virtualKeyFor(pressed.scancode, pressed.sym, (pressed.mod & KMOD_NUM) != 0);
}

// SDL releases all keys when the window loses the focus, so a key cannot stay held.
SHORT WINAPI GetAsyncKeyState(int key) {
    constexpr auto held = static_cast<SHORT>(0x8000);
    if (SDL_WasInit(SDL_INIT_VIDEO) == 0) { return 0; }
    if (isHeldOnGamepad(key)) { return held; }
    int count = 0;
    const Uint8* down = SDL_GetKeyboardState(&count);
    const bool numberLock = (SDL_GetModState() & KMOD_NUM) != 0;
    for (int i = SDL_SCANCODE_A; i < count; ++i) { // no smaller scancode is a key
        const auto scancode = static_cast<SDL_Scancode>(i);
        const SDL_Keycode label = SDL_GetKeyFromScancode(scancode);
        if (down[i] != 0 && virtualKeyFor(scancode, label, numberLock) == key) { return held; }
    }
    return 0;
}
