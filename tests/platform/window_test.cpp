// The window: how it opens and closes, its focus and painting, where it stands on the desktop.
#include <csignal>
#include <utility>

#include "platform/sdl_machine.h"

namespace {

using Size = std::pair<int, int>;

constexpr Size ownSize = {640, 480};

Size sizeOfWindow() {
    Size size;
    SDL_GetWindowSize(currentWindow()->sdl, &size.first, &size.second);
    return size;
}

HWND openWindowOf(const char* className) {
    return CreateWindowExA(0, className, "", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
}

struct TheWindow : OnSdl {
    // What the window procedure hears after an event.
    static Numbers heardOf(SDL_EventType type, SDL_WindowEventID what = SDL_WINDOWEVENT_NONE) {
        heard.clear();
        pushEvent(type, what);
        messagesNow();
        return heard;
    }
};

TEST(Opening, NeedsOneWholeClass) {
    WNDCLASSA windowClass = {};
    windowClass.lpszClassName = "Another";
    EXPECT_FALSE(RegisterClassA(nullptr) || RegisterClassA(&windowClass)) << "no procedure";
    windowClass.lpfnWndProc = testProcedure;
    windowClass.lpszClassName = nullptr;
    EXPECT_FALSE(RegisterClassA(&windowClass)) << "no name";
    EXPECT_TRUE(openTestWindow());
    windowClass.lpszClassName = "Another";
    EXPECT_FALSE(RegisterClassA(&windowClass) || openWindowOf("Test")) << "there is one";
    closeTestWindow();
    EXPECT_FALSE(openWindowOf("Another") || openWindowOf(nullptr));
}

TEST(Opening, AsksTheGameFirst) {
    answers[WM_CREATE] = -1;
    EXPECT_EQ(openTestWindow(), nullptr);
    EXPECT_EQ(currentWindow(), nullptr);
    answers.clear();
    const HWND window = openTestWindow();
    EXPECT_TRUE(hasFlag(SDL_WINDOW_HIDDEN) && hasFlag(SDL_WINDOW_RESIZABLE));
    EXPECT_STREQ(SDL_GetWindowTitle(currentWindow()->sdl), "A title");
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_FALSE(ShowWindow(window, SW_SHOW)) << "it was hidden";
    EXPECT_TRUE(hasFlag(SDL_WINDOW_SHOWN));
    EXPECT_EQ(GetFocus(), window);
    EXPECT_TRUE(ShowWindow(window, SW_SHOW));
    EXPECT_TRUE(UpdateWindow(window));
    EXPECT_EQ(heard, (Numbers{WM_CREATE, WM_CREATE, WM_SETFOCUS, WM_PAINT}));
    closeTestWindow();
}

TEST_F(TheWindow, AsksForPaintUntilItIsBegun) {
    UpdateWindow(window);
    EXPECT_EQ(heard, Numbers{}) << "nothing waits";
    answers[WM_PAINT] = 0; // heard, and no more
    for (const SDL_WindowEventID event : {SDL_WINDOWEVENT_EXPOSED, SDL_WINDOWEVENT_SIZE_CHANGED}) {
        pushEvent(SDL_WINDOWEVENT, event);
        MSG message = {};
        for (int i = 0; i < 2; ++i) {
            ASSERT_TRUE(PeekMessageA(&message, window, 0, 0, PM_REMOVE));
            EXPECT_EQ(message.message, WM_PAINT);
        }
        PAINTSTRUCT paint = {};
        EXPECT_EQ(BeginPaint(window, &paint), GetDC(window));
        EXPECT_EQ(paint.hdc, GetDC(window));
        EXPECT_EQ(Size(paint.rcPaint.right, paint.rcPaint.bottom), ownSize);
        EXPECT_EQ(numbersNow(), Numbers{});
    }
}

TEST_F(TheWindow, HearsOfFocusAndRequestsToCloseOnce) {
    EXPECT_EQ(heardOf(SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_GAINED), Numbers{}) << "it has it";
    EXPECT_EQ(heardOf(SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_LOST), Numbers{WM_KILLFOCUS});
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_EQ(heardOf(SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_GAINED), Numbers{WM_SETFOCUS});
    EXPECT_EQ(GetFocus(), window);
    EXPECT_EQ(heardOf(SDL_WINDOWEVENT, SDL_WINDOWEVENT_CLOSE), Numbers{WM_CLOSE});
    EXPECT_EQ(heardOf(SDL_QUIT), Numbers{WM_CLOSE});
    for (const int signal : {SIGTERM, SIGINT}) {
        std::raise(signal);
        EXPECT_EQ(heardOf(SDL_USEREVENT), Numbers{WM_CLOSE}) << signal;
    }
}

TEST_F(TheWindow, EndsWhereTheGameLeavesTheRequestToTheSystem) {
    const Uint32 number = SDL_GetWindowID(currentWindow()->sdl);
    answers.clear();
    EXPECT_EQ(heardOf(SDL_QUIT), (Numbers{WM_CLOSE, WM_DESTROY}));
    PAINTSTRUCT paint;
    EXPECT_FALSE(currentWindow() || SDL_GetWindowFromID(number) || GetFocus() || GetDC(window) ||
                 BeginPaint(window, &paint));
    EXPECT_FALSE(ShowWindow(window, SW_SHOW) || UpdateWindow(window));
    DefWindowProcA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(heard, (Numbers{WM_CLOSE, WM_DESTROY}));
}

TEST_F(TheWindow, ShowsTheCursorWhileItsCountIsNotNegative) {
    const std::pair<BOOL, int> steps[] = {{FALSE, -1}, {FALSE, -2}, {TRUE, -1}, {TRUE, 0}};
    for (const auto& [show, count] : steps) {
        EXPECT_EQ(ShowCursor(show), count);
        EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), count < 0 ? SDL_DISABLE : SDL_ENABLE);
    }
}

TEST_F(TheWindow, IsTwiceTheDisplayWhereTheDesktopHasRoom) {
    const std::pair<Size, Size> cases[] = {{{1920, 1040}, {1280, 960}},
                                           {{1366, 768}, ownSize},
                                           {{1280, 2000}, ownSize}, // no room for borders
                                           {{2000, 960}, ownSize},
                                           {{0, 0}, ownSize}}; // the room is not known
    for (const auto& [room, size] : cases) {
        roomOnDesktop = {0, 0, room.first, room.second};
        closeTestWindow();
        openTestWindow();
        EXPECT_EQ(sizeOfWindow(), size) << room.first;
    }
}

TEST_F(TheWindow, CoversTheScreenInTheDisplayModeOnly) {
    SDL_Rect desktop;
    SDL_GetDisplayBounds(0, &desktop);
    const auto coversScreen = [&] {
        return hasFlag(SDL_WINDOW_FULLSCREEN_DESKTOP) &&
               sizeOfWindow() == Size(desktop.w, desktop.h);
    };
    DEVMODEA mode = {0, 0, 16, 640, 480};
    EXPECT_EQ(ChangeDisplaySettingsA(&mode, 0), DISP_CHANGE_SUCCESSFUL);
    EXPECT_TRUE(coversScreen());
    EXPECT_EQ(ChangeDisplaySettingsA(nullptr, 0), DISP_CHANGE_SUCCESSFUL);
    EXPECT_TRUE(hasFlag(SDL_WINDOW_HIDDEN));
    EXPECT_FALSE(ShowWindow(window, SW_SHOW) || hasFlag(SDL_WINDOW_FULLSCREEN_DESKTOP));
    EXPECT_EQ(sizeOfWindow(), ownSize);

    closeTestWindow();
    ChangeDisplaySettingsA(&mode, 0);
    ShowWindow(openTestWindow(), SW_SHOW);
    EXPECT_TRUE(coversScreen());
    pushKey(SDL_SCANCODE_RETURN, KMOD_LALT);
    messagesNow();
    EXPECT_EQ(sizeOfWindow(), ownSize);
    ChangeDisplaySettingsA(nullptr, 0);
}

TEST_F(TheWindow, HasOneDisplayMode) {
    DEVMODEA mode = {};
    ASSERT_TRUE(EnumDisplaySettingsA(nullptr, 0, &mode));
    EXPECT_EQ(mode.dmSize, sizeof mode);
    EXPECT_EQ(mode.dmFields, DM_BITSPERPEL | DM_PELSWIDTH | DM_PELSHEIGHT);
    EXPECT_EQ(mode.dmBitsPerPel, 16U);
    EXPECT_EQ(Size(mode.dmPelsWidth, mode.dmPelsHeight), ownSize);
    for (const auto field :
         {&DEVMODEA::dmBitsPerPel, &DEVMODEA::dmPelsWidth, &DEVMODEA::dmPelsHeight}) {
        DEVMODEA other = mode;
        other.*field *= 2;
        EXPECT_EQ(ChangeDisplaySettingsA(&other, 0), DISP_CHANGE_BADMODE);
        EXPECT_FALSE(EnumDisplaySettingsA(nullptr, 1, &other)) << "there is no other";
        EXPECT_NE(other.*field, mode.*field) << "the record is as it was";
    }
    EXPECT_FALSE(EnumDisplaySettingsA(nullptr, 0, nullptr));
}

} // namespace
