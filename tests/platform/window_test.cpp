// The window, from the start of the machine to its end: focus and painting, full screen, and what
// a machine without a display or without OpenGL says.
#include <utility>

#include "platform/common/errors.h"
#include "platform/sdl/shutdown.h"
#include "platform/sdl/window.h"
#include "platform/sdl_machine.h"

namespace {

using Size = std::pair<int, int>;

constexpr Size ownSize = {640, 480};

Size sizeOfWindow() {
    Size size;
    SDL_GetWindowSize(sdlWindow(), &size.first, &size.second);
    return size;
}

struct TheWindow : OnSdl {};

TEST_F(TheWindow, OpensHiddenAfterTheGameIsAsked) {
    const Uint32 number = SDL_GetWindowID(sdlWindow());
    closeWindow();
    EXPECT_EQ(SDL_GetWindowFromID(number), nullptr);
    answers[WM_CREATE] = -1;
    EXPECT_EQ(openTestWindow(), nullptr);
    answers.clear();
    openTestWindow();
    EXPECT_EQ(openTestWindow(), nullptr) << "there is one";
    EXPECT_TRUE(hasFlag(SDL_WINDOW_HIDDEN) && hasFlag(SDL_WINDOW_RESIZABLE));
    EXPECT_TRUE(hasFlag(SDL_WINDOW_ALLOW_HIGHDPI)) << "every pixel of the display";
    EXPECT_STREQ(SDL_GetWindowTitle(sdlWindow()), "A title");
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_FALSE(ShowWindow(window, SW_SHOW)) << "it was hidden";
    EXPECT_TRUE(hasFlag(SDL_WINDOW_SHOWN));
    EXPECT_EQ(GetFocus(), window);
    EXPECT_TRUE(ShowWindow(window, SW_SHOW));
    EXPECT_TRUE(UpdateWindow(window));
    EXPECT_EQ(ShowCursor(FALSE), -1);
    EXPECT_EQ(ShowCursor(TRUE), 0);
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_ENABLE);
    EXPECT_EQ(heardNow(), (Numbers{WM_CREATE, WM_CREATE, WM_SETFOCUS, WM_PAINT}));
}

TEST_F(TheWindow, AsksForPaintUntilItIsBegun) {
    UpdateWindow(window);
    EXPECT_EQ(heardNow(), Numbers{}) << "nothing waits";
    answers[WM_PAINT] = 0; // received, and nothing else
    for (const SDL_WindowEventID event : {SDL_WINDOWEVENT_EXPOSED, SDL_WINDOWEVENT_SIZE_CHANGED}) {
        pushEvent(SDL_WINDOWEVENT, event);
        EXPECT_GT(heardNow().size(), 1000U) << "again and again";
        PAINTSTRUCT paint = {};
        EXPECT_EQ(BeginPaint(window, &paint), GetDC(window));
        EXPECT_EQ(Size(paint.rcPaint.right, paint.rcPaint.bottom), ownSize);
        EXPECT_EQ(heardNow(), Numbers{});
    }
}

TEST_F(TheWindow, HearsOfFocusAndRequestsToCloseOnce) {
    pushEvent(SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_GAINED); // it has it
    pushEvent(SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_LOST);
    EXPECT_EQ(heardNow(), Numbers{WM_KILLFOCUS});
    EXPECT_EQ(GetFocus(), nullptr);
    pushEvent(SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_GAINED);
    pushKey(SDL_SCANCODE_J);
    pushEvent(SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_LOST);
    pushEvent(SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_GAINED);
    EXPECT_EQ(heardNow(), (Numbers{WM_SETFOCUS, WM_KEYDOWN})) << "it has got it back already";
    EXPECT_EQ(GetFocus(), window);
    pushEvent(SDL_WINDOWEVENT, SDL_WINDOWEVENT_CLOSE);
    EXPECT_EQ(heardNow(), Numbers{WM_CLOSE});
    pushEvent(SDL_QUIT); // as signals do
    EXPECT_EQ(heardNow(), Numbers{WM_CLOSE});
    answers.clear(); // the game leaves the request to the system
    pushEvent(SDL_QUIT);
    EXPECT_EQ(heardNow(), (Numbers{WM_CLOSE, WM_DESTROY}));
    EXPECT_FALSE(currentWindow() || SDL_GL_GetCurrentWindow() || GetFocus() || GetDC(window));
}

TEST_F(TheWindow, IsTwiceTheDisplayWhereTheDesktopHasRoom) {
    const std::pair<SDL_Rect, Size> cases[] = {{{0, 0, 1920, 1040}, {1280, 960}},
                                               {{0, 0, 1280, 2000}, ownSize}, // no room for borders
                                               {{0, 0, 2000, 960}, ownSize}};
    for (const auto& [room, size] : cases) {
        roomOnDesktop = room;
        closeWindow();
        openTestWindow();
        EXPECT_EQ(sizeOfWindow(), size) << room.w;
    }
}

TEST_F(TheWindow, CoversTheScreenInTheOneDisplayMode) {
    DEVMODEA mode = {};
    ASSERT_TRUE(EnumDisplaySettingsA(nullptr, 0, &mode));
    EXPECT_FALSE(EnumDisplaySettingsA(nullptr, 1, &mode)) << "there is no other";
    EXPECT_FALSE(EnumDisplaySettingsA(nullptr, 0, nullptr));
    EXPECT_EQ(mode.dmSize, sizeof mode);
    EXPECT_EQ(mode.dmFields, DM_BITSPERPEL | DM_PELSWIDTH | DM_PELSHEIGHT);
    EXPECT_EQ(mode.dmBitsPerPel, 16U);
    EXPECT_EQ(Size(mode.dmPelsWidth, mode.dmPelsHeight), ownSize);
    for (auto field : {&DEVMODEA::dmBitsPerPel, &DEVMODEA::dmPelsWidth, &DEVMODEA::dmPelsHeight}) {
        DEVMODEA other = mode;
        other.*field *= 2;
        EXPECT_EQ(ChangeDisplaySettingsA(&other, 0), DISP_CHANGE_BADMODE);
    }
    hasWindowManager = false;
    EXPECT_EQ(ChangeDisplaySettingsA(&mode, 0), DISP_CHANGE_SUCCESSFUL);
    SDL_Rect screen;
    Size place;
    SDL_GetDisplayBounds(0, &screen);
    SDL_GetWindowPosition(sdlWindow(), &place.first, &place.second);
    EXPECT_TRUE(place == Size(screen.x, screen.y) && sizeOfWindow() == Size(screen.w, screen.h));
    hasWindowManager = true;
    EXPECT_EQ(ChangeDisplaySettingsA(&mode, 0), DISP_CHANGE_SUCCESSFUL);
    EXPECT_TRUE(hasFlag(SDL_WINDOW_FULLSCREEN) && sizeOfWindow() > ownSize);
    EXPECT_EQ(ChangeDisplaySettingsA(nullptr, 0), DISP_CHANGE_SUCCESSFUL);
    EXPECT_TRUE(hasFlag(SDL_WINDOW_HIDDEN));
    EXPECT_FALSE(ShowWindow(window, SW_SHOW) || hasFlag(SDL_WINDOW_FULLSCREEN));
    EXPECT_EQ(sizeOfWindow(), ownSize);
    closeWindow();
    ChangeDisplaySettingsA(&mode, 0);
    ShowWindow(openTestWindow(), SW_SHOW);
    EXPECT_TRUE(hasFlag(SDL_WINDOW_FULLSCREEN) && sizeOfWindow() > ownSize);
    ChangeDisplaySettingsA(nullptr, 0);
}

void findNoDisplay() {
    DEVMODEA mode = {};
    EXPECT_TRUE(EnumDisplaySettingsA(nullptr, 0, &mode));
    EXPECT_EQ(ChangeDisplaySettingsA(&mode, 0), DISP_CHANGE_SUCCESSFUL) << "no box of the game";
    EXPECT_EQ(openTestWindow(), nullptr);
    EXPECT_TRUE(hadFatalError());
}

void findNoOpenGl() {
    const HDC surface = GetDC(openTestWindow());
    const PIXELFORMATDESCRIPTOR wanted = {};
    EXPECT_FALSE(ChoosePixelFormat(surface, &wanted) || wglCreateContext(surface));
    EXPECT_TRUE(hadFatalError());
    std::fputs(lastErrorWords().c_str(), stderr);
}

void startAndStop() {
    EXPECT_NE(openTestWindow(), nullptr);
    EXPECT_FALSE(SDL_IsTextInputActive()) << "an input method would take the letters";
    for (const char* hint :
         {SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE}) {
        EXPECT_FALSE(SDL_GetHintBoolean(hint, SDL_TRUE)) << hint;
    }
    shutDown();
    EXPECT_EQ(SDL_WasInit(0), 0U);
}

// Runs a story with that video driver of SDL and ends the process.
void run(const char* driver, void (*story)()) {
    setenv("SDL_VIDEODRIVER", driver, 1);
    story();
    std::exit(testing::Test::HasFailure() ? 1 : 0);
}

TEST(Machine, StartsAndStopsOrSaysWhatIsMissing) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const testing::ExitedWithCode well(0);
    EXPECT_EXIT(run("none", findNoDisplay), well, "There is no display to play on: .*none.*\\.");
    EXPECT_EXIT(run("dummy", findNoOpenGl), well, "OpenGL could not be started: .*dummy.*\\.");
    EXPECT_EXIT(run("offscreen", startAndStop), well, "^$");
}

} // namespace
