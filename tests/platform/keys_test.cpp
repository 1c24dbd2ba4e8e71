// Every key: the message that it sends, and the state that the game asks for.
#include <tuple>

#include "platform/sdl_machine.h"

namespace {

// The codes of keys that follow each other in SDL's numbers.
struct Row {
    Codes codes;
    SDL_Scancode first;
    int modifiers = KMOD_NONE;
};

const Row everyKey[] = {
    {{65, 66, 67, 68, 69, 70, 71, 72, 73, 74, 75, 76, 77}, SDL_SCANCODE_A},
    {{78, 79, 80, 81, 82, 83, 84, 85, 86, 87, 88, 89, 90}, SDL_SCANCODE_N},
    {{'1', '2', '3', '4', '5', '6', '7', '8', '9', '0'}, SDL_SCANCODE_1},
    // Return, Escape, Backspace, Tab, Space, minus, equals, both brackets, backslash
    {{13, 27, 8, 9, 32, 189, 187, 219, 221, 220}, SDL_SCANCODE_RETURN},
    // semicolon, apostrophe, grave accent, comma, period, slash, Caps Lock
    {{186, 222, 192, 188, 190, 191, 20}, SDL_SCANCODE_SEMICOLON},
    {{112, 113, 114, 115, 116, 117, 118, 119, 120, 121, 122, 123}, SDL_SCANCODE_F1},
    {{124, 125, 126, 127, 128, 129, 130, 131, 132, 133, 134, 135}, SDL_SCANCODE_F13},
    // Scroll Lock, Pause, Insert, Home, Page Up, Delete, End, Page Down, right, left, down, up
    {{145, 19, 45, 36, 33, 46, 35, 34, 39, 37, 40, 38}, SDL_SCANCODE_SCROLLLOCK},
    // the keypad: Num Lock, divide, multiply, minus, plus, Enter; then 1 to 9, 0 and the point
    {{144, 111, 106, 109, 107, 13}, SDL_SCANCODE_NUMLOCKCLEAR},
    {{35, 40, 34, 37, 12, 39, 36, 38, 33, 45, 46}, SDL_SCANCODE_KP_1},
    {{97, 98, 99, 100, 101, 102, 103, 104, 105, 96, 110}, SDL_SCANCODE_KP_1, KMOD_NUM},
    {{226, 93}, SDL_SCANCODE_NONUSBACKSLASH}, // beside the left Shift; the menu key
    // left Control, Shift, Alt and logo; the same on the right
    {{17, 16, 18, 91, 17, 16, 18, 92}, SDL_SCANCODE_LCTRL}};

struct Keys : OnSdl {};

TEST_F(Keys, HaveOneCodeInMessagesAndInTheirState) {
    for (const Row& row : everyKey) {
        SDL_SetModState(static_cast<SDL_Keymod>(row.modifiers));
        auto place = row.first;
        for (const int code : row.codes) {
            keyState(place) = 1;
            EXPECT_EQ(heldCodes(), Codes{code});
            keyState(place) = 0;
            pushKey(place, row.modifiers);
            EXPECT_EQ(pressedNow(), Codes{code});
            place = static_cast<SDL_Scancode>(place + 1);
        }
    }
    pushKey(SDL_SCANCODE_MUTE);
    EXPECT_EQ(pressedNow(), Codes{}) << "a key without a code";
}

TEST_F(Keys, GoByTheirLabelsForLettersAndByTheirPlacesForTheRest) {
    const std::tuple<const char*, SDL_Scancode, SDL_Keycode, Codes> cases[] = {
        {"A on a French keyboard", SDL_SCANCODE_Q, SDLK_a, {'A'}},
        {"Z on a German keyboard", SDL_SCANCODE_Y, SDLK_z, {'Z'}},
        {"comma on a French keyboard", SDL_SCANCODE_M, SDLK_COMMA, {188}},
        {"its 1, labelled &", SDL_SCANCODE_1, SDLK_AMPERSAND, {'1'}},
        {"period on a Dvorak keyboard", SDL_SCANCODE_E, SDLK_PERIOD, {190}},
        {"Cyrillic, in the place of A", SDL_SCANCODE_A, 0x444, {'A'}},
        {"an accented letter beside L", SDL_SCANCODE_SEMICOLON, 0xE9, {186}},
        {"no letter in the place of one", SDL_SCANCODE_B, SDLK_MUTE, {}}};
    for (const auto& [what, place, label, codes] : cases) {
        SDL_Event event = keyEvent(place);
        event.key.keysym.sym = label;
        push(event);
        EXPECT_EQ(pressedNow(), codes) << what;
    }
}

TEST_F(Keys, RepeatWithAMarkAndBelongToTheSystemWithAlt) {
    pushKey(SDL_SCANCODE_DOWN);
    pushKey(SDL_SCANCODE_DOWN, KMOD_RSHIFT, true);
    pushEvent(SDL_KEYUP);
    const std::vector<MSG> messages = messagesNow();
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_EQ(messages[0].lParam, 1);
    EXPECT_EQ(messages[1].lParam, 1 | 1 << 30);
    for (const SDL_Scancode key : {SDL_SCANCODE_F1, SDL_SCANCODE_ESCAPE, SDL_SCANCODE_RETURN,
                                   SDL_SCANCODE_SPACE, SDL_SCANCODE_A, SDL_SCANCODE_BACKSPACE}) {
        pushKey(key, KMOD_NONE, true);
        const std::size_t repeats = key == SDL_SCANCODE_BACKSPACE ? 1 : 0;
        EXPECT_EQ(pressedNow().size(), repeats) << key;
    }
    heard.clear();
    for (const int alt : {KMOD_LALT, KMOD_RALT}) {
        for (const bool full : {true, false}) {
            pushKey(SDL_SCANCODE_RETURN, alt);
            pushKey(SDL_SCANCODE_RETURN, alt, true);
            pushKey(SDL_SCANCODE_UP, alt);
            messagesNow();
            EXPECT_EQ(hasFlag(SDL_WINDOW_FULLSCREEN), full);
        }
        pushKey(SDL_SCANCODE_F4, alt);
        pushKey(SDL_SCANCODE_F4, alt, true);
        EXPECT_EQ(heardNow(), (Numbers{WM_PAINT, WM_PAINT, WM_CLOSE}));
    }
}

} // namespace
