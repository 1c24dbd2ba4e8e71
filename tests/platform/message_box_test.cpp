// Message boxes on SDL's offscreen driver: what they show, what closes them, what the game
// receives.
#include "platform/sdl/message_box.h"

#include "platform/sdl/box_text.h"
#include "platform/sdl_machine.h"

namespace {

using Lines = std::vector<std::string>;

TEST(BoxText, BreaksBetweenWordsAndWithinPathsAndIsCutWhereTheDisplayEnds) {
    EXPECT_EQ(wrapText("could not load  the map", 10), (Lines{"could not", "load the", "map"}));
    EXPECT_EQ(wrapText("load a map it", 10), (Lines{"load a map", "it"}));
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

    // A new box takes the events in turn; the last of them decides.
    bool isClosedBy(const std::vector<SDL_Event>& events) {
        box.close();
        box = {};
        EXPECT_TRUE(box.open({"Notice", "\nRg", false}, nullptr));
        bool closed = false;
        for (SDL_Event event : events) {
            EXPECT_FALSE(closed);
            event.window.windowID = SDL_GetWindowID(box.sdl);
            closed = box.handle(event);
        }
        return closed;
    }

    MessageBox box;
};

TEST_F(Boxes, ShowTheirText) {
    EXPECT_NE(SDL_GetWindowFlags(box.sdl) & SDL_WINDOW_SHOWN, 0U);
    const SDL_Surface& surface = *SDL_GetWindowSurface(box.sdl);
    const int scale = surface.w / 130; // no text is as wide as the narrowest box
    const auto* row = static_cast<const Uint32*>(surface.pixels) + 47 * scale * surface.w;
    std::string dots; // of the middle of "Rg"
    for (int x = 10; x < 21; ++x) {
        dots += row[x * scale] == row[14 * scale] ? '.' : '#';
    }
    EXPECT_EQ(dots, "####..#...#");
}

TEST_F(Boxes, CloseWhenAKeyOfTheirOwnIsLetGo) {
    const auto up = [](SDL_Scancode key) { return keyEvent(key, KMOD_NONE, false, SDL_KEYUP); };
    for (const SDL_Scancode key :
         {SDL_SCANCODE_RETURN, SDL_SCANCODE_KP_ENTER, SDL_SCANCODE_SPACE, SDL_SCANCODE_ESCAPE}) {
        EXPECT_TRUE(isClosedBy({keyEvent(key), up(SDL_SCANCODE_UP), up(key)})) << key;
        EXPECT_FALSE(isClosedBy({up(key), keyEvent(key, KMOD_NONE, true), up(key)}))
            << "held before";
    }
    EXPECT_FALSE(isClosedBy({keyEvent(SDL_SCANCODE_F4), up(SDL_SCANCODE_F4)}));
    EXPECT_FALSE(isClosedBy({up(SDL_SCANCODE_UNKNOWN)})) << "a key that SDL does not know";
    EXPECT_TRUE(isClosedBy({keyEvent(SDL_SCANCODE_F4, KMOD_LALT), up(SDL_SCANCODE_F4)}));
}

TEST_F(Boxes, CloseByAClickOnTheirButtonAndByTheirCloseButton) {
    const auto mouse = [&](SDL_EventType type, int y, Uint8 button = SDL_BUTTON_LEFT) {
        SDL_Event event = {};
        event.type = type;
        event.button.button = button;
        event.button.x = box.button.x + box.button.w - 1;
        event.button.y = box.button.y + y;
        return event;
    };
    const int below = box.button.h;
    const SDL_Event up = mouse(SDL_MOUSEBUTTONUP, below - 1);
    EXPECT_TRUE(isClosedBy({mouse(SDL_MOUSEBUTTONDOWN, 0), up}));
    EXPECT_FALSE(isClosedBy({mouse(SDL_MOUSEBUTTONDOWN, below), up}));
    EXPECT_FALSE(isClosedBy({mouse(SDL_MOUSEBUTTONDOWN, 0), mouse(SDL_MOUSEBUTTONUP, below)}));
    EXPECT_FALSE(isClosedBy({mouse(SDL_MOUSEBUTTONDOWN, 0, SDL_BUTTON_RIGHT), up}));
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
        EXPECT_EQ(heardNow(), Numbers{WM_CLOSE});
    }
    pushKey(SDL_SCANCODE_J);
    MessageBoxA(window, "Creating a file", "Notice", MB_OK);
    EXPECT_EQ(heardNow(), Numbers{}) << "a key that waited for the box is the box's";
    pushKey(SDL_SCANCODE_RETURN);
    SDL_Event up = keyEvent(SDL_SCANCODE_RETURN, KMOD_NONE, false, SDL_KEYUP);
    SDL_PushEvent(&up);
    pushKey(SDL_SCANCODE_J);
    MessageBoxA(window, "Creating a file", "Notice", MB_OK);
    EXPECT_EQ(heardNow(), Numbers{}) << "pressed before the box was gone";
    const std::string lines = "glorbix: Notice: Creating a file\nglorbix: Error: no font\n";
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              lines + lines + lines.substr(0, 33) + lines.substr(0, 33));
}

} // namespace
