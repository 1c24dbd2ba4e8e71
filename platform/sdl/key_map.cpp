#include "platform/sdl/key_map.h"

#include "platform/windows_api.h"

namespace {

// Codes that the game does not know by name.
constexpr int vkBackspace = 8;
constexpr int vkTab = 9;
constexpr int vkClear = 12;
constexpr int vkControl = 17;
constexpr int vkAlt = 18;
constexpr int vkPause = 19;
constexpr int vkCapsLock = 20;
constexpr int vkPageUp = 33;
constexpr int vkPageDown = 34;
constexpr int vkEnd = 35;
constexpr int vkHome = 36;
constexpr int vkInsert = 45;
constexpr int vkDelete = 46;
constexpr int vkLeftLogo = 91;
constexpr int vkRightLogo = 92;
constexpr int vkMenu = 93;
constexpr int vkNumpad0 = 96;
constexpr int vkNumpadMultiply = 106;
constexpr int vkNumpadPlus = 107;
constexpr int vkNumpadMinus = 109;
constexpr int vkNumpadPoint = 110;
constexpr int vkNumpadDivide = 111;
constexpr int vkNumLock = 144;
constexpr int vkScrollLock = 145;
constexpr int vkSemicolon = 186;
constexpr int vkEquals = 187;
constexpr int vkComma = 188;
constexpr int vkMinus = 189;
constexpr int vkPeriod = 190;
constexpr int vkSlash = 191;
constexpr int vkGrave = 192;
constexpr int vkLeftBracket = 219;
constexpr int vkBackslash = 220;
constexpr int vkRightBracket = 221;
constexpr int vkApostrophe = 222;
constexpr int vkBesideLeftShift = 226; // on keyboards with 102 keys

struct KeyCode {
    SDL_Scancode scancode;
    int key;
};

constexpr KeyCode codesByPosition[] = {
    {SDL_SCANCODE_BACKSPACE, vkBackspace},
    {SDL_SCANCODE_TAB, vkTab},
    {SDL_SCANCODE_RETURN, VK_RETURN},
    {SDL_SCANCODE_KP_ENTER, VK_RETURN},
    {SDL_SCANCODE_LSHIFT, VK_SHIFT},
    {SDL_SCANCODE_RSHIFT, VK_SHIFT},
    {SDL_SCANCODE_LCTRL, vkControl},
    {SDL_SCANCODE_RCTRL, vkControl},
    {SDL_SCANCODE_LALT, vkAlt},
    {SDL_SCANCODE_RALT, vkAlt},
    {SDL_SCANCODE_PAUSE, vkPause},
    {SDL_SCANCODE_CAPSLOCK, vkCapsLock},
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
    {SDL_SCANCODE_LGUI, vkLeftLogo},
    {SDL_SCANCODE_RGUI, vkRightLogo},
    {SDL_SCANCODE_APPLICATION, vkMenu},
    {SDL_SCANCODE_KP_MULTIPLY, vkNumpadMultiply},
    {SDL_SCANCODE_KP_PLUS, vkNumpadPlus},
    {SDL_SCANCODE_KP_MINUS, vkNumpadMinus},
    {SDL_SCANCODE_KP_DIVIDE, vkNumpadDivide},
    {SDL_SCANCODE_NUMLOCKCLEAR, vkNumLock},
    {SDL_SCANCODE_SCROLLLOCK, vkScrollLock},
    {SDL_SCANCODE_SEMICOLON, vkSemicolon},
    {SDL_SCANCODE_EQUALS, vkEquals},
    {SDL_SCANCODE_COMMA, vkComma},
    {SDL_SCANCODE_MINUS, vkMinus},
    {SDL_SCANCODE_PERIOD, vkPeriod},
    {SDL_SCANCODE_SLASH, vkSlash},
    {SDL_SCANCODE_GRAVE, vkGrave},
    {SDL_SCANCODE_LEFTBRACKET, vkLeftBracket},
    {SDL_SCANCODE_BACKSLASH, vkBackslash},
    {SDL_SCANCODE_RIGHTBRACKET, vkRightBracket},
    {SDL_SCANCODE_APOSTROPHE, vkApostrophe},
    {SDL_SCANCODE_NONUSBACKSLASH, vkBesideLeftShift},
};

// The keypad's 0 to 9 while the number lock is off.
constexpr int keypadNavigation[] = {vkInsert, vkEnd,    VK_DOWN, vkPageDown, VK_LEFT,
                                    vkClear,  VK_RIGHT, vkHome,  VK_UP,      vkPageUp};

// Returns the digit of one of the ten keys 1, ..., 9, 0 that follow each other from `one`, -1 for
// any other key.
int digitFrom(SDL_Scancode scancode, SDL_Scancode one) {
    const int offset = scancode - one;
    return offset >= 0 && offset < 10 ? (offset + 1) % 10 : -1;
}

int keypadKey(SDL_Scancode scancode, bool numberLock) {
    if (scancode == SDL_SCANCODE_KP_PERIOD) { return numberLock ? vkNumpadPoint : vkDelete; }
    const int digit = digitFrom(scancode, SDL_SCANCODE_KP_1);
    if (digit < 0) { return 0; }
    return numberLock ? vkNumpad0 + digit : keypadNavigation[digit];
}

int functionKey(SDL_Scancode scancode) {
    if (scancode >= SDL_SCANCODE_F1 && scancode <= SDL_SCANCODE_F12) {
        return VK_F1 + scancode - SDL_SCANCODE_F1;
    }
    if (scancode >= SDL_SCANCODE_F13 && scancode <= SDL_SCANCODE_F24) {
        return VK_F12 + 1 + scancode - SDL_SCANCODE_F13;
    }
    return 0;
}

int letterKey(SDL_Scancode scancode, SDL_Keycode label) {
    if (label >= SDLK_a && label <= SDLK_z) { return 'A' + label - SDLK_a; }
    const bool isLetterKey = scancode >= SDL_SCANCODE_A && scancode <= SDL_SCANCODE_Z;
    const bool hasForeignLabel = label >= 0x80 && (label & SDLK_SCANCODE_MASK) == 0;
    return isLetterKey && hasForeignLabel ? 'A' + scancode - SDL_SCANCODE_A : 0;
}

// Punctuation that a layout has where others have a letter.
int punctuationKey(SDL_Keycode label) {
    switch (label) {
    case SDLK_SEMICOLON: return vkSemicolon;
    case SDLK_COMMA: return vkComma;
    case SDLK_PERIOD: return vkPeriod;
    default: return 0;
    }
}

int positionedKey(SDL_Scancode scancode) {
    for (const KeyCode& code : codesByPosition) {
        if (code.scancode == scancode) { return code.key; }
    }
    return 0;
}

} // namespace

int virtualKeyFor(SDL_Scancode scancode, SDL_Keycode label, bool numberLock) {
    if (const int key = letterKey(scancode, label)) { return key; }
    if (const int digit = digitFrom(scancode, SDL_SCANCODE_1); digit >= 0) { return '0' + digit; }
    if (const int key = keypadKey(scancode, numberLock)) { return key; }
    if (const int key = functionKey(scancode)) { return key; }
    if (const int key = positionedKey(scancode)) { return key; }
    return punctuationKey(label);
}
