// Message boxes on SDL's offscreen driver: what they show, what closes them, what the game
// receives.
#include "platform/sdl/message_box.h"

#include <ctime>
#include <tuple>

#include "platform/sdl/box_text.h"
#include "platform/sdl_machine.h"

namespace {

using Lines = std::vector<std::string>;

TEST(BoxText, BreaksBetweenWordsAndWithinPathsAndIsCutWhereTheDisplayEnds) {
    EXPECT_EQ(wrapText("could not load  the map", 10), (Lines{"could not", "load the", "map"}));
    EXPECT_EQ(wrapText("load a map it", 10), (Lines{"load a map", "it"}));
    EXPECT_EQ(wrapText("load a mapp", 10), (Lines{"load a", "mapp"}));
    EXPECT_EQ(wrapText("in /usr/share/glorbix/maps it", 10),
              (Lines{"in", "/usr/share", "/glorbix/m", "aps it"}));
    EXPECT_EQ(wrapText("one\r\n\nZo\xC3\xAB\tt\n", 10), (Lines{"one", "", "Zo\x7F t"}));
    EXPECT_EQ(wrapText("", 10), Lines{""});
    const BoxContent words = {"Error", "There is no " + std::string(540, '/'), false};
    EXPECT_EQ(layOutBox(words, 3, 640, 480).scale, 2);
    const BoxLayout cut = layOutBox(words, 3, 160, 120);
    EXPECT_LE(cut.height, 120);
    EXPECT_EQ(cut.text.back(), "...");
}

struct Boxes : OnSdl {
    Boxes() { isClosedBy({}); }
    ~Boxes() override { box.close(); }

    SDL_Surface& open(const BoxContent& content) {
        box.close();
        box = {};
        keyState(SDL_SCANCODE_RETURN) = holdsReturn ? 1 : 0;
        EXPECT_TRUE(box.open(content, nullptr));
        return *SDL_GetWindowSurface(box.sdl);
    }

    bool handle(SDL_Event event) {
        event.window.windowID = SDL_GetWindowID(box.sdl);
        return box.handle(event);
    }

    // A new box takes the events in turn; the last of them decides.
    bool isClosedBy(const std::vector<SDL_Event>& events) {
        open({"Notice", "", false});
        bool closed = false;
        for (const SDL_Event& event : events) {
            EXPECT_FALSE(closed);
            closed = handle(event);
        }
        return closed;
    }

    MessageBox box;
    bool holdsReturn = false;
};

SDL_Event up(SDL_Scancode key) {
    return keyEvent(key, KMOD_NONE, false, SDL_KEYUP);
}

Uint32 pressReturn(Uint32 = 0, void* = nullptr) {
    pushKey(SDL_SCANCODE_RETURN);
    push(up(SDL_SCANCODE_RETURN));
    return 0;
}

// Every glyph, both colours, and the places of all: a sum over the pixels. Look at the picture that
// is named before you change a sum.
TEST_F(Boxes, LookAsTheyDidBefore) {
    std::string text = "Zo\xC3\xAB\n";
    for (char character = '!'; character <= '~'; ++character) {
        text += character;
    }
    roomOnDesktop = SDL_Rect{0, 0, 640, 480};
    for (const Uint32 sum : {0x7A79EE60U, 0x3DF7C2E0U}) {
        SDL_Surface& surface = open({"Gear", text, sum == 0x3DF7C2E0});
        Uint32 seen = 0;
        for (int i = 0; i < surface.w * surface.h; ++i) {
            const Uint32 pixel = static_cast<const Uint32*>(surface.pixels)[i] & 0xFFFFFF;
            seen = (seen ^ pixel) * 16777619;
        }
        const std::string picture = testing::TempDir() + "glorbix_box.bmp";
        EXPECT_EQ(seen, sum) << (SDL_SaveBMP(&surface, picture.c_str()), picture);
        constexpr SDL_Rect button = {252, 180, 88, 38}; // on that picture
        EXPECT_TRUE(SDL_RectEquals(&box.button, &button));
    }
    EXPECT_NE(SDL_GetWindowFlags(box.sdl) & SDL_WINDOW_ALWAYS_ON_TOP, 0U);
    bool painted = false;
    whenBoxIsPainted = [&] { painted = true; };
    EXPECT_TRUE(!handle(plainEvent(SDL_WINDOWEVENT, SDL_WINDOWEVENT_EXPOSED)) && painted);
}

TEST_F(Boxes, AreAsLargeAsTheDisplayAllows) {
    // the scale of short texts; the width of long ones
    const std::tuple<SDL_Rect, int, int> cases[] = {
        {{0, 0, 640, 480}, 2, 592}, {{0, 0, 1920, 1080}, 3, 1068}, {{0, 0, 3840, 2160}, 6, 2136}};
    for (const auto& [room, scale, most] : cases) {
        roomOnDesktop = room;
        EXPECT_EQ(open({"", "short", false}).w, 130 * scale);
        const SDL_Surface& surface = open({"", std::string(500, '/'), false});
        EXPECT_EQ(surface.w, most);
        EXPECT_LE(surface.h, room.h - 48) << "its title bar has room";
    }
}

TEST_F(Boxes, CloseWhenAKeyOfTheirOwnIsLetGo) {
    for (const SDL_Scancode key :
         {SDL_SCANCODE_RETURN, SDL_SCANCODE_KP_ENTER, SDL_SCANCODE_SPACE, SDL_SCANCODE_ESCAPE}) {
        EXPECT_TRUE(isClosedBy({keyEvent(key), up(SDL_SCANCODE_UP), up(key)})) << key;
        EXPECT_FALSE(isClosedBy({up(key), keyEvent(key, KMOD_NONE, true), up(key)}))
            << "held before";
    }
    EXPECT_FALSE(isClosedBy({keyEvent(SDL_SCANCODE_F4), up(SDL_SCANCODE_F4)}));
    EXPECT_FALSE(isClosedBy({up(SDL_SCANCODE_UNKNOWN)})) << "a key that SDL does not know";
    EXPECT_TRUE(isClosedBy({keyEvent(SDL_SCANCODE_F4, KMOD_LALT), up(SDL_SCANCODE_F4)}));

    const SDL_Event pressed = keyEvent(SDL_SCANCODE_RETURN);
    stoppedClock = 9000;
    holdsReturn = true;
    EXPECT_FALSE(isClosedBy({pressed, up(SDL_SCANCODE_RETURN)})) << "SDL may take it for a press";
    stoppedClock = 9700;
    EXPECT_FALSE(handle(pressed));
    EXPECT_TRUE(handle(up(SDL_SCANCODE_RETURN))) << "let go and pressed again since";
}

TEST_F(Boxes, CloseByAClickOnTheirButtonByTheirCloseButtonAndByAGamepad) {
    const auto mouse = [&](SDL_EventType type, int y, Uint8 button = SDL_BUTTON_LEFT) {
        SDL_Event event = {};
        event.type = type;
        event.button.button = button;
        event.button.x = box.button.x + box.button.w - 1;
        event.button.y = box.button.y + y;
        return event;
    };
    const int below = box.button.h;
    const SDL_Event let = mouse(SDL_MOUSEBUTTONUP, below - 1);
    EXPECT_TRUE(isClosedBy({mouse(SDL_MOUSEBUTTONDOWN, 0), let}));
    EXPECT_FALSE(isClosedBy({mouse(SDL_MOUSEBUTTONDOWN, below), let}));
    EXPECT_FALSE(isClosedBy({mouse(SDL_MOUSEBUTTONDOWN, 0), mouse(SDL_MOUSEBUTTONUP, below)}));
    EXPECT_FALSE(isClosedBy({mouse(SDL_MOUSEBUTTONDOWN, 0, SDL_BUTTON_RIGHT), let}));
    EXPECT_TRUE(isClosedBy({plainEvent(SDL_WINDOWEVENT, SDL_WINDOWEVENT_CLOSE)}));
    EXPECT_FALSE(SDL_HasEvent(SDL_QUIT)) << "the game plays on";
    const SDL_Event padLet = plainEvent(SDL_CONTROLLERBUTTONUP); // its first button, A
    EXPECT_TRUE(isClosedBy({plainEvent(SDL_CONTROLLERBUTTONDOWN), padLet}));
    EXPECT_FALSE(isClosedBy({padLet})) << "held before";
}

TEST_F(OnSdl, MessageBoxesWaitForThePlayerAndLeaveTheGameAsItWas) {
    testing::internal::CaptureStderr();
    driver = "x11"; // where a player can answer
    ShowCursor(FALSE);
    keyState(SDL_SCANCODE_UP) = 1;
    whenBoxIsPainted = [] {
        EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_ENABLE);
        pushEvent(SDL_POLLSENTINEL); // SDL's own
        pushEvent(SDL_WINDOWEVENT, SDL_WINDOWEVENT_EXPOSED);
        SDL_AddTimer(300, pressReturn, nullptr);
    };
    const std::clock_t before = std::clock();
    EXPECT_EQ(MessageBoxA(window, "", "Notice", MB_OK), 1);
    EXPECT_LT(std::clock() - before, CLOCKS_PER_SEC / 5) << "it takes no processor time";
    testing::internal::GetCapturedStderr();
    EXPECT_FALSE(whenBoxIsPainted);
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_DISABLE);
    ShowCursor(TRUE);
    EXPECT_EQ(heldCodes(), std::vector<int>{});
    EXPECT_EQ(heardNow(), Numbers{WM_PAINT});
}

TEST_F(OnSdl, MessageBoxesLeaveTheGameNothingButTheRequestToEnd) {
    testing::internal::CaptureStderr();
    driver = "x11"; // where the boxes wait for more
    for (const SDL_EventType type : {SDL_QUIT, SDL_WINDOWEVENT}) {
        pushKey(SDL_SCANCODE_J);
        pushEvent(type, SDL_WINDOWEVENT_CLOSE);
        pushKey(SDL_SCANCODE_RETURN);
        EXPECT_EQ(MessageBoxA(window, "Creating a file", "Notice", MB_OK), 1);
        EXPECT_EQ(MessageBoxA(nullptr, "no font", nullptr, MB_ICONHAND), 1);
        EXPECT_EQ(heardNow(), Numbers{WM_CLOSE});
    }
    driver.reset();
    pushKey(SDL_SCANCODE_J);
    MessageBoxA(window, "Creating a file", "Notice", MB_OK);
    EXPECT_EQ(heardNow(), Numbers{}) << "a key that waited for the box is the box's";
    pressReturn();
    pushKey(SDL_SCANCODE_J);
    pushEvent(SDL_CONTROLLERBUTTONDOWN);
    MessageBoxA(window, "Creating a file", "Notice", MB_OK);
    EXPECT_EQ(heardNow(), Numbers{}) << "pressed before the box was gone";
    const std::string lines = "glorbix: Notice: Creating a file\nglorbix: Error: no font\n";
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              lines + lines + lines.substr(0, 33) + lines.substr(0, 33));
}

} // namespace
