// Every key: the message that it sends, the state that the game asks for.
#include "platform/sdl/key_map.h"
#include "platform/sdl_machine.h"

namespace {

struct Key {
    SDL_Scancode place;
    int code;
    int modifiers = KMOD_NONE;
};

SDL_Scancode placeAfter(SDL_Scancode first, int steps) {
    return static_cast<SDL_Scancode>(first + steps);
}

std::vector<Key> everyKey() {
    std::vector<Key> keys = {{SDL_SCANCODE_BACKSPACE, 8},
                             {SDL_SCANCODE_TAB, 9},
                             {SDL_SCANCODE_RETURN, 13},
                             {SDL_SCANCODE_KP_ENTER, 13},
                             {SDL_SCANCODE_LSHIFT, 16},
                             {SDL_SCANCODE_RSHIFT, 16},
                             {SDL_SCANCODE_LCTRL, 17},
                             {SDL_SCANCODE_RCTRL, 17},
                             {SDL_SCANCODE_LALT, 18},
                             {SDL_SCANCODE_RALT, 18},
                             {SDL_SCANCODE_PAUSE, 19},
                             {SDL_SCANCODE_CAPSLOCK, 20},
                             {SDL_SCANCODE_ESCAPE, 27},
                             {SDL_SCANCODE_SPACE, 32},
                             {SDL_SCANCODE_PAGEUP, 33},
                             {SDL_SCANCODE_PAGEDOWN, 34},
                             {SDL_SCANCODE_END, 35},
                             {SDL_SCANCODE_HOME, 36},
                             {SDL_SCANCODE_LEFT, 37},
                             {SDL_SCANCODE_UP, 38},
                             {SDL_SCANCODE_RIGHT, 39},
                             {SDL_SCANCODE_DOWN, 40},
                             {SDL_SCANCODE_INSERT, 45},
                             {SDL_SCANCODE_DELETE, 46},
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
                             {SDL_SCANCODE_KP_PERIOD, 46},
                             {SDL_SCANCODE_KP_PERIOD, 110, KMOD_NUM}};
    for (int i = 0; i < 26; ++i) {
        keys.push_back({placeAfter(SDL_SCANCODE_A, i), 'A' + i});
    }
    for (int i = 0; i < 12; ++i) {
        keys.push_back({placeAfter(SDL_SCANCODE_F1, i), 112 + i});
        keys.push_back({placeAfter(SDL_SCANCODE_F13, i), 124 + i});
    }
    constexpr int navigation[] = {35, 40, 34, 37, 12, 39, 36, 38, 33, 45}; // of 1, ..., 9, 0
    for (int i = 0; i < 10; ++i) {
        const int digit = (i + 1) % 10;
        keys.push_back({placeAfter(SDL_SCANCODE_1, i), '0' + digit});
        keys.push_back({placeAfter(SDL_SCANCODE_KP_1, i), 96 + digit, KMOD_NUM});
        keys.push_back({placeAfter(SDL_SCANCODE_KP_1, i), navigation[i]});
    }
    return keys;
}

std::vector<int> heldKeys() {
    std::vector<int> held;
    for (int code = 1; code < 256; ++code) {
        if (GetAsyncKeyState(code) < 0) {
            held.push_back(code);
        }
    }
    return held;
}

struct Keys : OnSdl {};

TEST_F(Keys, AllHaveOneCodeInMessagesAndInTheirState) {
    for (const Key& key : everyKey()) {
        SCOPED_TRACE(key.place);
        SDL_SetModState(static_cast<SDL_Keymod>(key.modifiers));
        hold(key.place, true);
        EXPECT_EQ(heldKeys(), std::vector{key.code});
        hold(key.place, false);
        EXPECT_EQ(GetAsyncKeyState(key.code), 0);
        pushKey(key.place, key.modifiers);
        const std::vector<MSG> messages = messagesNow();
        ASSERT_EQ(messages.size(), 1U);
        EXPECT_EQ(messages[0].hwnd, window);
        EXPECT_EQ(messages[0].message, WM_KEYDOWN);
        EXPECT_EQ(messages[0].wParam, static_cast<WPARAM>(key.code));
    }
    pushKey(SDL_SCANCODE_MUTE);
    EXPECT_EQ(numbersNow(), Numbers{}) << "a key without a code";
}

TEST_F(Keys, HeldTogetherAreAllHeld) {
    hold(SDL_SCANCODE_UP, true);
    hold(SDL_SCANCODE_RSHIFT, true);
    EXPECT_EQ(heldKeys(), (std::vector{VK_SHIFT, VK_UP}));
    hold(SDL_SCANCODE_UP, false);
    hold(SDL_SCANCODE_RSHIFT, false);
    EXPECT_EQ(heldKeys(), std::vector<int>{});
}

TEST_F(Keys, RepeatWithAMark) {
    pushKey(SDL_SCANCODE_DOWN);
    pushKey(SDL_SCANCODE_DOWN, KMOD_NONE, true);
    const std::vector<MSG> messages = messagesNow();
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_EQ(messages[0].lParam, 1);
    EXPECT_EQ(messages[1].lParam, 1 | 1 << 30);
    EXPECT_TRUE(TranslateMessage(&messages[0]));
    EXPECT_FALSE(TranslateMessage(nullptr));
}

TEST_F(Keys, WithAltBelongToTheSystem) {
    const auto isFullScreen = [] {
        return (SDL_GetWindowFlags(sdlWindow()) & SDL_WINDOW_FULLSCREEN_DESKTOP) != 0;
    };
    for (const int alt : {KMOD_LALT, KMOD_RALT}) {
        for (const SDL_Scancode place : {SDL_SCANCODE_J, SDL_SCANCODE_UP, SDL_SCANCODE_F3}) {
            pushKey(place, alt);
        }
        EXPECT_EQ(numbersNow(), Numbers{});
        for (const bool full : {true, false}) {
            pushKey(SDL_SCANCODE_RETURN, alt);
            pushKey(SDL_SCANCODE_RETURN, alt, true);
            numbersNow();
            EXPECT_EQ(isFullScreen(), full);
        }
        heard.clear();
        pushKey(SDL_SCANCODE_F4, alt);
        pushKey(SDL_SCANCODE_F4, alt, true);
        numbersNow();
        EXPECT_EQ(heard, Numbers{WM_CLOSE});
    }
    for (const int modifier : {KMOD_LSHIFT, KMOD_RCTRL, KMOD_CAPS}) {
        pushKey(SDL_SCANCODE_J, modifier);
    }
    EXPECT_EQ(numbersNow(), Numbers(3, WM_KEYDOWN));
}

TEST(KeyLabels, DecideForLettersAndThePlaceForTheRest) {
    const struct {
        const char* what;
        SDL_Scancode place;
        SDL_Keycode label;
        int key;
    } cases[] = {
        {"A on a French keyboard", SDL_SCANCODE_Q, SDLK_a, 'A'},
        {"Z on a German keyboard", SDL_SCANCODE_Y, SDLK_z, 'Z'},
        {"M on a French keyboard", SDL_SCANCODE_SEMICOLON, SDLK_m, 'M'},
        {"its comma, where others have M", SDL_SCANCODE_M, SDLK_COMMA, 188},
        {"its 1, labelled &", SDL_SCANCODE_1, SDLK_AMPERSAND, '1'},
        {"Dvorak's semicolon", SDL_SCANCODE_Z, SDLK_SEMICOLON, 186},
        {"Dvorak's point", SDL_SCANCODE_E, SDLK_PERIOD, 190},
        {"Dvorak's apostrophe, which has no code", SDL_SCANCODE_Q, SDLK_QUOTE, 0},
        {"Cyrillic, in the place of D", SDL_SCANCODE_D, 0x432, 'D'},
        {"Cyrillic, in the places of A and Z", SDL_SCANCODE_A, 0x444, 'A'},
        {"Cyrillic, in the places of A and Z", SDL_SCANCODE_Z, 0x44F, 'Z'},
        {"an accented letter on the place of ;", SDL_SCANCODE_SEMICOLON, 0xE9, 186},
        {"a letter's place without a letter", SDL_SCANCODE_B, SDLK_MUTE, 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(virtualKeyFor(c.place, c.label, false), c.key) << c.what;
    }
}

} // namespace
