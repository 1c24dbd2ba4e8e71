// Message boxes on SDL's offscreen driver: what they show, what closes them, what the game hears.
#include "platform/sdl/message_box.h"

#include "platform/sdl/box_text.h"
#include "platform/sdl_machine.h"

namespace {

using Lines = std::vector<std::string>;
using Events = std::vector<SDL_Event>;

TEST(BoxText, BreaksBetweenWordsAndWithinPathsAndIsCutWhereTheDisplayEnds) {
    EXPECT_EQ(wrapText("could not load  the map", 10), (Lines{"could not", "load the", "map"}));
    EXPECT_EQ(wrapText("in /usr/share/glorbix/maps it", 10),
              (Lines{"in", "/usr/share", "/glorbix/m", "aps it"}));
    EXPECT_EQ(wrapText("one\r\n\nZo\xC3\xAB\tt\n", 10), (Lines{"one", "", "Zo\x7F t"}));
    EXPECT_EQ(wrapText("", 10), Lines{""});
    const BoxWords words = {"Error", "There is no " + std::string(540, '/'), false};
    for (const int height : {2000, 480, 240, 120}) {
        const BoxLayout layout = layOutBox(words, 3, height * 4 / 3, height);
        EXPECT_LE(layout.width, height * 4 / 3);
        EXPECT_LE(layout.height, height);
        EXPECT_EQ(layout.scale, height == 2000 ? 3 : height == 480 ? 2 : 1);
        EXPECT_EQ(layout.text.back() == "...", height <= 120) << height;
    }
}

struct Boxes : OnSdl {
    Boxes() { EXPECT_TRUE(box.open({"Notice", "Rg", false}, nullptr)); }
    ~Boxes() override { box.close(); }

    // The events that wait are taken in turn; the last of them decides.
    bool isClosedBy(const Events& events) {
        box.close();
        box = {};
        EXPECT_TRUE(box.open({"Error", "Again", true}, nullptr));
        bool closed = false;
        for (SDL_Event event : events) {
            EXPECT_FALSE(closed);
            event.window.windowID += SDL_GetWindowID(box.sdl);
            closed = box.take(event);
        }
        return closed;
    }

    MessageBox box;
};

TEST_F(Boxes, ShowTheirText) {
    const SDL_Surface& surface = *SDL_GetWindowSurface(box.sdl);
    const int scale = surface.w / 130; // no text is as wide as the narrowest box
    const auto* row = static_cast<const Uint32*>(surface.pixels) + 35 * scale * surface.w;
    std::string dots; // of the middle of "Rg"
    for (int x = 10; x < 21; ++x) {
        dots += row[x * scale] == row[14 * scale] ? '.' : '#';
    }
    EXPECT_EQ(dots, "####..#...#");
}

TEST_F(Boxes, CloseWhenAKeyOfTheirOwnIsLetGo) {
    const auto down = [](SDL_Scancode key, int modifiers = 0, bool repeat = false) {
        return keyEvent(SDL_KEYDOWN, key, modifiers, repeat);
    };
    const auto up = [](SDL_Scancode key) { return keyEvent(SDL_KEYUP, key); };
    for (const SDL_Scancode key :
         {SDL_SCANCODE_RETURN, SDL_SCANCODE_KP_ENTER, SDL_SCANCODE_SPACE, SDL_SCANCODE_ESCAPE}) {
        EXPECT_TRUE(isClosedBy({down(key), up(SDL_SCANCODE_UP), up(key)})) << key;
        EXPECT_FALSE(isClosedBy({up(key), down(key, 0, true), up(key)})) << "held before";
    }
    EXPECT_FALSE(isClosedBy({down(SDL_SCANCODE_UP), up(SDL_SCANCODE_UP)}));
    EXPECT_FALSE(isClosedBy({down(SDL_SCANCODE_F4), up(SDL_SCANCODE_F4)}));
    EXPECT_TRUE(isClosedBy({down(SDL_SCANCODE_F4, KMOD_LALT), up(SDL_SCANCODE_F4)}));
}

TEST_F(Boxes, CloseByAClickOnTheirButtonAndByTheirCloseButton) {
    const auto mouse = [&](SDL_EventType type, bool inside, Uint8 button = SDL_BUTTON_LEFT) {
        SDL_Event event = {};
        event.type = type;
        event.button.button = button;
        event.button.x = box.button.x + box.button.w - 1;
        event.button.y = box.button.y + (inside ? box.button.h - 1 : box.button.h);
        return event;
    };
    isClosedBy({}); // a box like the others
    const SDL_Event down = mouse(SDL_MOUSEBUTTONDOWN, true);
    const SDL_Event up = mouse(SDL_MOUSEBUTTONUP, true);
    EXPECT_TRUE(isClosedBy({down, up}));
    EXPECT_FALSE(isClosedBy({up}));
    EXPECT_FALSE(isClosedBy({mouse(SDL_MOUSEBUTTONDOWN, false), up}));
    EXPECT_FALSE(isClosedBy({down, mouse(SDL_MOUSEBUTTONUP, false)}));
    EXPECT_FALSE(isClosedBy({down, mouse(SDL_MOUSEBUTTONUP, true, SDL_BUTTON_RIGHT)}));
    SDL_Event close = {};
    close.type = SDL_WINDOWEVENT;
    close.window.event = SDL_WINDOWEVENT_CLOSE;
    EXPECT_TRUE(isClosedBy({close}));
    EXPECT_FALSE(SDL_HasEvent(SDL_QUIT)) << "the game plays on";
}

TEST_F(OnSdl, MessageBoxesLeaveTheGameNothingButTheRequestToEnd) {
    testing::internal::CaptureStderr();
    for (const SDL_EventType type : {SDL_QUIT, SDL_WINDOWEVENT}) {
        pushKey(SDL_SCANCODE_J);
        pushEvent(type, SDL_WINDOWEVENT_CLOSE);
        pushKey(SDL_SCANCODE_RETURN);
        EXPECT_EQ(MessageBoxA(window, "Creating a file", "Notice", MB_OK), 1);
        EXPECT_EQ(MessageBoxA(nullptr, "no font", nullptr, MB_ICONHAND), 1);
        heard.clear();
        messagesNow();
        EXPECT_EQ(heard, Numbers{WM_CLOSE});
    }
    const std::string lines = "glorbix: Notice: Creating a file\nglorbix: Error: no font\n";
    EXPECT_EQ(testing::internal::GetCapturedStderr(), lines + lines);
}

} // namespace
