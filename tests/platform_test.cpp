// The machine behind the door: what can be decided without a display, and the order of messages.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include <SDL.h>
#include <gtest/gtest.h>

#include "platform/sdl/key_map.h"
#include "platform/sdl/letterbox.h"
#include "platform/windows_api.h"

namespace {

TEST(Letterbox, KeepsTheShapeInTheMiddleOfAnyWindow) {
    struct Case {
        int width, height;
        std::array<int, 4> picture; // x, y, width, height
    };
    for (const Case& c : {Case{640, 480, {0, 0, 640, 480}}, Case{1920, 1080, {240, 0, 1440, 1080}},
                          Case{700, 900, {0, 187, 700, 525}}, Case{0, 0, {0, 0, 0, 0}}}) {
        const PixelRect r = letterbox(c.width, c.height);
        EXPECT_EQ((std::array{r.x, r.y, r.width, r.height}), c.picture) << c.width;
    }
}

TEST(KeyMap, GoesByLabelForLettersAndByPlaceForTheRest) {
    struct Case {
        const char* what;
        SDL_Scancode place;
        SDL_Keycode label;
        bool numberLock;
        int key;
    };
    for (const Case& c : {
             Case{"A on a French keyboard", SDL_SCANCODE_Q, SDLK_a, false, 'A'},
             Case{"its comma, where others have M", SDL_SCANCODE_M, SDLK_COMMA, false, 188},
             Case{"its 1, labelled &", SDL_SCANCODE_1, SDLK_AMPERSAND, false, '1'},
             Case{"Cyrillic, in the place of D", SDL_SCANCODE_D, 0x432, false, 'D'},
             Case{"right Shift", SDL_SCANCODE_RSHIFT, SDLK_RSHIFT, false, VK_SHIFT},
             Case{"keypad 9", SDL_SCANCODE_KP_9, SDLK_KP_9, true, 105},
             Case{"keypad 4, number lock off", SDL_SCANCODE_KP_4, SDLK_KP_4, false, VK_LEFT},
             Case{"keypad point", SDL_SCANCODE_KP_PERIOD, SDLK_KP_PERIOD, true, 110},
             Case{"F13", SDL_SCANCODE_F13, SDLK_F13, false, VK_F12 + 1},
             Case{"a key without a code", SDL_SCANCODE_MUTE, SDLK_MUTE, false, 0},
         })
        EXPECT_EQ(virtualKeyFor(c.place, c.label, c.numberLock), c.key) << c.what;
}

LRESULT CALLBACK leaveAlone(HWND window, UINT message, WPARAM, LPARAM) {
    return message == WM_CREATE ? 0 : DefWindowProcA(window, message, 0, 0);
}

TEST(Messages, ComeOutPostedFirstThenQuitInputPaintAndTimers) {
    SDL_SetHint(SDL_HINT_VIDEODRIVER, "offscreen");
    WNDCLASSA windowClass = {};
    windowClass.lpszClassName = "Test";
    windowClass.lpfnWndProc = leaveAlone;
    ASSERT_NE(RegisterClassA(&windowClass), 0);
    const HWND window =
        CreateWindowExA(0, "Test", "", 0, 0, 0, 640, 480, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    ShowWindow(window, SW_SHOW);
    SetTimer(window, 1, 10, nullptr);
    SDL_Delay(35); // due three times, told once
    SDL_Event key = {};
    key.type = SDL_KEYDOWN;
    key.key.keysym = {SDL_SCANCODE_J, SDLK_j, KMOD_NONE, 0};
    SDL_PushEvent(&key);
    PostQuitMessage(7);
    PostMessageA(window, WM_USER, 0, 0);
    std::vector<UINT> order;
    MSG message;
    while (order.size() < 9 && PeekMessageA(&message, window, 0, 0, PM_REMOVE)) {
        order.push_back(message.message);
        DispatchMessageA(&message);
    }
    EXPECT_EQ(order, (std::vector<UINT>{WM_USER, WM_QUIT, WM_KEYDOWN, WM_PAINT, WM_TIMER}));
    DefWindowProcA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(GetDC(window), nullptr) << "the window is gone";
}

} // namespace
