#include "platform/sdl/key_map.h"

#include "platform/windows_api.h"

namespace {

constexpr int vkPageUp = 33;
constexpr int vkPageDown = 34;
constexpr int vkEnd = 35;
constexpr int vkHome = 36;
constexpr int vkInsert = 45;
constexpr int vkDelete = 46;
constexpr int vkClear = 12;
constexpr int vkNumpad0 = 96;
constexpr int vkNumpadPoint = 110;

struct KeyCode {
    SDL_Scancode place;
    int key;
};

constexpr KeyCode codesByPlace[] = {
    {SDL_SCANCODE_BACKSPACE, 8},
    {SDL_SCANCODE_TAB, 9},
    {SDL_SCANCODE_RETURN, VK_RETURN},
    {SDL_SCANCODE_KP_ENTER, VK_RETURN},
    {SDL_SCANCODE_LSHIFT, VK_SHIFT},
    {SDL_SCANCODE_RSHIFT, VK_SHIFT},
    {SDL_SCANCODE_LCTRL, 17},
    {SDL_SCANCODE_RCTRL, 17},
    {SDL_SCANCODE_LALT, 18},
    {SDL_SCANCODE_RALT, 18},
    {SDL_SCANCODE_PAUSE, 19},
    {SDL_SCANCODE_CAPSLOCK, 20},
    {SDL_SCANCODE_ESCAPE, VK_ESCAPE},
    {SDL_SCANCODE_SPACE, VK_SPACE},
    {SDL_SCANCODE_PAGEUP, vkPageUp},
    {SDL_SCANCODE_PAGEDOWN, vkPageDown},
    {SDL_SCANCODE_END, vkEnd},
    {SDL_SCANCODE_HOME, vkHome},
    {SDL_SCANCODE_LEFT, VK_LEFT},
    {SDL_SCANCODE_UP, VK_UP},
    {SDL_SCANCODE_RIGHT, VK_RIGHT},
    {SDL_SCANCODE_DOWN, VK_DOWN},
    {SDL_SCANCODE_INSERT, vkInsert},
    {SDL_SCANCODE_DELETE, vkDelete},
    {SDL_SCANCODE_LGUI, 91},
    {SDL_SCANCODE_RGUI, 92},
    {SDL_SCANCODE_APPLICATION, 93},
    {SDL_SCANCODE_KP_MULTIPLY, 106},
    {SDL_SCANCODE_KP_PLUS, 107},
    {SDL_SCANCODE_KP_MINUS, 109},
    {SDL_SCANCODE_KP_DIVIDE, 111},
    {SDL_SCANCODE_NUMLOCKCLEAR, 144},
    {SDL_SCANCODE_SCROLLLOCK, 145},
    {SDL_SCANCODE_SEMICOLON, 186},
    {SDL_SCANCODE_EQUALS, 187},
    {SDL_SCANCODE_COMMA, 188},
    {SDL_SCANCODE_MINUS, 189},
    {SDL_SCANCODE_PERIOD, 190},
    {SDL_SCANCODE_SLASH, 191},
    {SDL_SCANCODE_GRAVE, 192},
    {SDL_SCANCODE_LEFTBRACKET, 219},
    {SDL_SCANCODE_BACKSLASH, 220},
    {SDL_SCANCODE_RIGHTBRACKET, 221},
    {SDL_SCANCODE_APOSTROPHE, 222},
    {SDL_SCANCODE_NONUSBACKSLASH, 226},
};

// What the keypad's 0 to 9 are without the number lock.
constexpr int keypadNavigation[] = {vkInsert, vkEnd,    VK_DOWN, vkPageDown, VK_LEFT,
                                    vkClear,  VK_RIGHT, vkHome,  VK_UP,      vkPageUp};

// The digit of ten keys in the order 1, ..., 9, 0 that start at `one`; -1 for any other key.
int digitFrom(SDL_Scancode place, SDL_Scancode one) {
    const int offset = place - one;
    return offset >= 0 && offset < 10 ? (offset + 1) % 10 : -1;
}

int keypadKey(SDL_Scancode place, bool numberLock) {
    if (place == SDL_SCANCODE_KP_PERIOD) { return numberLock ? vkNumpadPoint : vkDelete; }
    const int digit = digitFrom(place, SDL_SCANCODE_KP_1);
    if (digit < 0) { return 0; }
    return numberLock ? vkNumpad0 + digit : keypadNavigation[digit];
}

int functionKey(SDL_Scancode place) {
    if (place >= SDL_SCANCODE_F1 && place <= SDL_SCANCODE_F12) {
        return VK_F1 + place - SDL_SCANCODE_F1;
    }
    if (place >= SDL_SCANCODE_F13 && place <= SDL_SCANCODE_F24) {
        return VK_F12 + 1 + place - SDL_SCANCODE_F13;
    }
    return 0;
}

int letterKey(SDL_Scancode place, SDL_Keycode label) {
    if (label >= SDLK_a && label <= SDLK_z) { return 'A' + label - SDLK_a; }
    const bool letterPlace = place >= SDL_SCANCODE_A && place <= SDL_SCANCODE_Z;
    const bool foreignLabel = label >= 0x80 && !(label & SDLK_SCANCODE_MASK);
    return letterPlace && foreignLabel ? 'A' + place - SDL_SCANCODE_A : 0;
}

// Punctuation that a layout puts on a place where others have a letter.
int punctuationKey(SDL_Keycode label) {
    switch (label) {
    case SDLK_SEMICOLON: return 186;
    case SDLK_COMMA: return 188;
    case SDLK_PERIOD: return 190;
    default: return 0;
    }
}

int placedKey(SDL_Scancode place) {
    for (const KeyCode& code : codesByPlace) {
        if (code.place == place) { return code.key; }
    }
    return 0;
}

} // namespace

int virtualKeyFor(SDL_Scancode place, SDL_Keycode label, bool numberLock) {
    if (const int key = letterKey(place, label)) { return key; }
    if (const int digit = digitFrom(place, SDL_SCANCODE_1); digit >= 0) { return '0' + digit; }
    if (const int key = keypadKey(place, numberLock)) { return key; }
    if (const int key = functionKey(place)) { return key; }
    if (const int key = placedKey(place)) { return key; }
    return punctuationKey(label);
}
