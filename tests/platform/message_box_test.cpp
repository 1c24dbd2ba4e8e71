// Message boxes on the offscreen driver of SDL: what they show, and what closes them.
#include "platform/sdl/message_box.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/sdl/box_text.h"
#include "platform/sdl/machine.h"
#include "platform/sdl/window.h"
#include "platform/windows_api.h"

namespace {

using Lines = std::vector<std::string>;

TEST(BoxText, BreaksBetweenWordsAndWithinPaths) {
    EXPECT_EQ(wrapText("could not load  the map", 10), (Lines{"could not", "load the", "map"}));
    EXPECT_EQ(wrapText("in /usr/share/glorbix/maps it", 10),
              (Lines{"in", "/usr/share", "/glorbix/m", "aps it"}));
    EXPECT_EQ(wrapText("one\r\n\ntwo\n", 10), (Lines{"one", "", "two"}));
    EXPECT_EQ(wrapText("Zo\xC3\xAB\ttyped", 10), (Lines{"Zo\x7F typed"}));
    EXPECT_EQ(wrapText("", 10), Lines{""});
}

TEST(BoxLayout, FitsIntoAnyDisplayAndSaysWhereItsTextIsCut) {
    std::string path;
    for (int i = 0; i < 60; ++i) {
        path += "/a folder";
    }
    const BoxWords words = {"Error", "There is no " + path, false};
    for (const int height : {2000, 480, 240, 120}) {
        const int width = height * 4 / 3;
        const BoxLayout layout = layOutBox(words, 3, width, height);
        EXPECT_LE(layout.width, width);
        EXPECT_LE(layout.height, height);
        EXPECT_EQ(layout.scale, height == 2000 ? 3 : height == 480 ? 2 : 1);
        EXPECT_EQ(layout.text.back() == "...", height <= 120) << height;
        EXPECT_EQ(layout.text.front(), wrapText(words.text, layout.text.front().size()).front());
    }
}

// A dot of a surface, '#' where it has another colour than the one at the lower left of the text.
Lines dots(SDL_Surface& surface, int x, int y, int scale) {
    const auto pixel = [&](int column, int row) {
        const auto* line = static_cast<const Uint8*>(surface.pixels) + row * surface.pitch;
        return reinterpret_cast<const Uint32*>(line)[column];
    };
    Lines rows;
    for (int row = 0; row < 9; ++row) {
        rows.emplace_back();
        for (int column = 0; column < 17; ++column) {
            const Uint32 colour = pixel(x + column * scale, y + row * scale);
            EXPECT_EQ(colour, pixel(x + column * scale + scale - 1, y + row * scale + scale - 1));
            rows.back() += colour == pixel(x, y + 8 * scale) ? '.' : '#';
        }
    }
    return rows;
}

class OpenBox : public testing::Test {
protected:
    void SetUp() override {
        SDL_SetHint(SDL_HINT_VIDEODRIVER, "offscreen");
        ASSERT_TRUE(startVideo());
        SDL_FlushEvents(SDL_FIRSTEVENT, SDL_LASTEVENT);
        ASSERT_TRUE(box.open({"Notice", "Rg\xE2\x82\xAC", false}, nullptr));
    }

    void TearDown() override { box.close(); }

    SDL_Surface& surface() const { return *SDL_GetWindowSurface(box.sdl); }

    bool takeKey(Uint32 type, SDL_Keycode key, Uint16 modifiers = KMOD_NONE, Uint8 repeat = 0) {
        SDL_Event event = {};
        event.type = type;
        event.key.keysym = {SDL_GetScancodeFromKey(key), key, modifiers, 0};
        event.key.repeat = repeat;
        return box.take(event);
    }

    bool takeButton(Uint32 type, int x, int y, Uint8 button = SDL_BUTTON_LEFT) {
        SDL_Event event = {};
        event.type = type;
        event.button.windowID = SDL_GetWindowID(box.sdl);
        event.button.button = button;
        event.button.x = x;
        event.button.y = y;
        return box.take(event);
    }

    bool takeWindowEvent(Uint32 window, SDL_WindowEventID what) {
        SDL_Event event = {};
        event.type = SDL_WINDOWEVENT;
        event.window.windowID = window;
        event.window.event = static_cast<Uint8>(what);
        return box.take(event);
    }

    MessageBox box;
};

TEST_F(OpenBox, ShowsItsTextDotByDotAndIsPaintedAgain) {
    const int scale = surface().w / 130; // no text is as wide as the narrowest box
    ASSERT_GE(scale, 2);
    const Lines expected = {"####........#####", //
                            "#...#.......#...#", //
                            "#...#..####.#...#", //
                            "####..#...#.#...#", //
                            "#.#...#...#.#...#", //
                            "#..#..#...#.#...#", //
                            "#...#..####.#####", //
                            "..........#......", //
                            ".......###......."};
    EXPECT_EQ(dots(surface(), 10 * scale, 32 * scale, scale), expected);
    SDL_FillRect(&surface(), nullptr, 0);
    EXPECT_FALSE(takeWindowEvent(SDL_GetWindowID(box.sdl), SDL_WINDOWEVENT_EXPOSED));
    EXPECT_EQ(dots(surface(), 10 * scale, 32 * scale, scale), expected);
}

TEST_F(OpenBox, ClosesWhenAKeyOfItsOwnIsLetGo) {
    for (const SDL_Keycode key : {SDLK_RETURN, SDLK_KP_ENTER, SDLK_SPACE, SDLK_ESCAPE}) {
        EXPECT_FALSE(takeKey(SDL_KEYUP, key)) << "it went down before the box opened";
        EXPECT_FALSE(takeKey(SDL_KEYDOWN, key, KMOD_NONE, 1)) << "it repeats";
        EXPECT_FALSE(takeKey(SDL_KEYUP, key));
        EXPECT_FALSE(takeKey(SDL_KEYDOWN, key));
        EXPECT_FALSE(takeKey(SDL_KEYUP, SDLK_UP));
        EXPECT_TRUE(takeKey(SDL_KEYUP, key)) << SDL_GetKeyName(key);
        box.close();
        ASSERT_TRUE(box.open({"Error", "Again", true}, nullptr));
    }
    for (const SDL_Keycode key : {SDLK_UP, SDLK_a, SDLK_F4}) {
        takeKey(SDL_KEYDOWN, key);
        EXPECT_FALSE(takeKey(SDL_KEYUP, key)) << SDL_GetKeyName(key);
    }
    takeKey(SDL_KEYDOWN, SDLK_F4, KMOD_LALT);
    EXPECT_TRUE(takeKey(SDL_KEYUP, SDLK_F4, KMOD_LALT));
}

TEST_F(OpenBox, ClosesByAClickOnItsButtonOnly) {
    const int x = box.button.x + box.button.w - 1;
    const int y = box.button.y + 1;
    const int below = box.button.y + box.button.h;
    EXPECT_FALSE(takeButton(SDL_MOUSEBUTTONUP, x, y)) << "the press was elsewhere";
    takeButton(SDL_MOUSEBUTTONDOWN, x, below);
    EXPECT_FALSE(takeButton(SDL_MOUSEBUTTONUP, x, y));
    takeButton(SDL_MOUSEBUTTONDOWN, x, y);
    EXPECT_FALSE(takeButton(SDL_MOUSEBUTTONUP, x, below));
    takeButton(SDL_MOUSEBUTTONDOWN, x, y, SDL_BUTTON_RIGHT);
    EXPECT_FALSE(takeButton(SDL_MOUSEBUTTONUP, x, y, SDL_BUTTON_RIGHT));
    takeButton(SDL_MOUSEBUTTONDOWN, x, y);
    EXPECT_TRUE(takeButton(SDL_MOUSEBUTTONUP, x, y));
}

TEST_F(OpenBox, ClosesByItsCloseButtonAndPassesRequestsToEndOn) {
    EXPECT_TRUE(takeWindowEvent(SDL_GetWindowID(box.sdl), SDL_WINDOWEVENT_CLOSE));
    EXPECT_FALSE(SDL_HasEvent(SDL_QUIT)) << "the game plays on";
    EXPECT_TRUE(takeWindowEvent(SDL_GetWindowID(box.sdl) + 1, SDL_WINDOWEVENT_CLOSE));
    EXPECT_TRUE(SDL_HasEvent(SDL_QUIT)) << "the close button of the game's window";
    SDL_Event quit;
    while (SDL_PollEvent(&quit) && quit.type != SDL_QUIT) {}
    EXPECT_TRUE(box.take(quit));
    EXPECT_TRUE(SDL_HasEvent(SDL_QUIT)) << "a signal";
}

Lines received; // by the game's window

LRESULT CALLBACK record(HWND window, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_CREATE) { // a signal comes while the start-up shows its boxes
        SDL_Event quit = {};
        quit.type = SDL_QUIT;
        SDL_PushEvent(&quit);
        MessageBoxA(window, "no font", "Error", MB_OK);
        MessageBoxA(nullptr, "no font", nullptr, MB_ICONHAND);
        return 0;
    }
    if (message == WM_PAINT) { return DefWindowProcA(window, message, 0, 0); }
    received.push_back(std::to_string(message) + " " + std::to_string(wParam));
    return 0;
}

TEST(MessageBoxes, LeaveTheGameNothingButTheRequestToEnd) {
    SDL_SetHint(SDL_HINT_VIDEODRIVER, "offscreen");
    WNDCLASSA windowClass = {};
    windowClass.lpszClassName = "Boxes";
    windowClass.lpfnWndProc = record;
    ASSERT_NE(RegisterClassA(&windowClass), 0);
    const HWND window =
        CreateWindowExA(0, "Boxes", "", 0, 0, 0, 640, 480, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    for (const Uint32 type : {SDL_KEYDOWN, SDL_KEYUP, SDL_KEYDOWN}) {
        SDL_Event key = {};
        key.type = type;
        key.key.keysym = {SDL_SCANCODE_RETURN, SDLK_RETURN, KMOD_NONE, 0};
        SDL_PushEvent(&key);
    }
    testing::internal::CaptureStderr();
    EXPECT_EQ(MessageBoxA(window, "Creating a file", "Notice", MB_OK), 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "glorbix: Notice: Creating a file\n");
    MSG message;
    for (int look = 0; look < 10; ++look) {
        if (PeekMessageA(&message, window, 0, 0, PM_REMOVE)) { DispatchMessageA(&message); }
    }
    EXPECT_EQ(received, Lines{std::to_string(WM_CLOSE) + " 0"});
    closeWindow();
}

} // namespace
