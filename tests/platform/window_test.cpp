// The window: how it opens and closes, its focus and painting, where it stands on the desktop.
#include <csignal>

#include "platform/sdl_machine.h"

namespace {

bool isFullScreen() {
    return (SDL_GetWindowFlags(sdlWindow()) & SDL_WINDOW_FULLSCREEN_DESKTOP) != 0;
}

std::pair<int, int> sizeOfWindow() {
    std::pair<int, int> size;
    SDL_GetWindowSize(sdlWindow(), &size.first, &size.second);
    return size;
}

HWND createWindow(const char* className) {
    return CreateWindowExA(0, className, "", 0, 0, 0, 640, 480, nullptr, nullptr, nullptr, nullptr);
}

struct TheWindow : OnSdl {
    // What the window procedure hears of the messages that wait.
    static Numbers hearing() {
        heard.clear();
        messagesNow();
        return heard;
    }
};

TEST(Opening, NeedsOneWholeClass) {
    WNDCLASSA windowClass = {};
    EXPECT_EQ(RegisterClassA(nullptr), 0);
    windowClass.lpszClassName = "Test";
    EXPECT_EQ(RegisterClassA(&windowClass), 0) << "no procedure";
    windowClass.lpfnWndProc = testProcedure;
    windowClass.lpszClassName = nullptr;
    EXPECT_EQ(RegisterClassA(&windowClass), 0) << "no name";
    EXPECT_NE(openTestWindow(), nullptr);
    windowClass.lpszClassName = "Another";
    EXPECT_EQ(RegisterClassA(&windowClass), 0) << "one is enough";
    EXPECT_EQ(createWindow("Test"), nullptr) << "there is one";
    closeTestWindow();
    EXPECT_EQ(createWindow("Another"), nullptr);
    EXPECT_EQ(createWindow(nullptr), nullptr);
}

TEST(Opening, TellsTheWindowFirstAndTakesNoForAnAnswer) {
    heard.clear();
    answers[WM_CREATE] = -1;
    EXPECT_EQ(openTestWindow(), nullptr);
    EXPECT_EQ(sdlWindow(), nullptr);
    EXPECT_EQ(heard, Numbers{WM_CREATE});
    answers.clear();
    const HWND window = openTestWindow();
    EXPECT_EQ(heard, (Numbers{WM_CREATE, WM_CREATE}));
    EXPECT_STREQ(SDL_GetWindowTitle(sdlWindow()), "A title");
    constexpr Uint32 kind = SDL_WINDOW_HIDDEN | SDL_WINDOW_OPENGL | SDL_WINDOW_RESIZABLE;
    EXPECT_EQ(SDL_GetWindowFlags(sdlWindow()) & (kind | SDL_WINDOW_FULLSCREEN), kind);
    EXPECT_EQ(GetFocus(), nullptr) << "not before it is shown";
    EXPECT_FALSE(ShowWindow(window, SW_SHOW));
    EXPECT_EQ(heard, (Numbers{WM_CREATE, WM_CREATE, WM_SETFOCUS}));
    EXPECT_EQ(GetFocus(), window);
    EXPECT_TRUE(ShowWindow(window, SW_SHOW)) << "it was visible before";
    EXPECT_TRUE(UpdateWindow(window));
    EXPECT_EQ(heard, (Numbers{WM_CREATE, WM_CREATE, WM_SETFOCUS, WM_PAINT}));
    closeTestWindow();
}

TEST_F(TheWindow, AsksForPaintUntilItIsBegun) {
    answers[WM_PAINT] = 0; // heard, and no more
    UpdateWindow(window);
    EXPECT_EQ(heard, Numbers{}) << "nothing waits";
    for (const SDL_WindowEventID event : {SDL_WINDOWEVENT_EXPOSED, SDL_WINDOWEVENT_SIZE_CHANGED}) {
        pushWindowEvent(event);
        MSG message = {};
        for (int i = 0; i < 3; ++i) {
            ASSERT_TRUE(PeekMessageA(&message, window, 0, 0, PM_REMOVE));
            EXPECT_EQ(message.message, WM_PAINT);
        }
        PAINTSTRUCT paint = {};
        EXPECT_EQ(BeginPaint(window, &paint), GetDC(window));
        EXPECT_EQ(paint.hdc, GetDC(window));
        EXPECT_EQ(paint.rcPaint.right, 640);
        EXPECT_EQ(paint.rcPaint.bottom, 480);
        EXPECT_TRUE(EndPaint(window, &paint));
        EXPECT_EQ(numbersNow(), Numbers{});
    }
    EXPECT_EQ(BeginPaint(window, nullptr), nullptr);
}

TEST_F(TheWindow, LosesAndGainsTheFocus) {
    const auto focusAfter = [&](SDL_WindowEventID event) {
        pushWindowEvent(event);
        return hearing();
    };
    EXPECT_EQ(focusAfter(SDL_WINDOWEVENT_FOCUS_GAINED), Numbers{}) << "it has it";
    EXPECT_EQ(focusAfter(SDL_WINDOWEVENT_FOCUS_LOST), Numbers{WM_KILLFOCUS});
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_EQ(focusAfter(SDL_WINDOWEVENT_FOCUS_LOST), Numbers{});
    EXPECT_EQ(focusAfter(SDL_WINDOWEVENT_FOCUS_GAINED), Numbers{WM_SETFOCUS});
    EXPECT_EQ(GetFocus(), window);
}

TEST_F(TheWindow, HearsEveryRequestToCloseOnce) {
    pushWindowEvent(SDL_WINDOWEVENT_CLOSE);
    EXPECT_EQ(hearing(), Numbers{WM_CLOSE});
    pushEvent(SDL_QUIT);
    EXPECT_EQ(hearing(), Numbers{WM_CLOSE});
    for (const int signal : {SIGTERM, SIGINT}) {
        std::raise(signal);
        EXPECT_EQ(hearing(), Numbers{WM_CLOSE}) << signal;
    }
    EXPECT_EQ(hearing(), Numbers{});
}

TEST_F(TheWindow, EndsWhereNobodyAnswersTheRequest) {
    answers.clear();
    pushEvent(SDL_QUIT);
    EXPECT_EQ(hearing(), (Numbers{WM_CLOSE, WM_DESTROY}));
    EXPECT_EQ(sdlWindow(), nullptr);
    EXPECT_EQ(GetFocus(), nullptr);
    PAINTSTRUCT paint;
    for (const HWND none : {window, HWND{nullptr}}) {
        EXPECT_FALSE(ShowWindow(none, SW_SHOW));
        EXPECT_FALSE(UpdateWindow(none));
        EXPECT_EQ(GetDC(none), nullptr);
        EXPECT_EQ(ReleaseDC(none, nullptr), 0);
        EXPECT_EQ(BeginPaint(none, &paint), nullptr);
        EXPECT_EQ(DefWindowProcA(none, WM_CLOSE, 0, 0), 0);
    }
    EXPECT_EQ(heard, (Numbers{WM_CLOSE, WM_DESTROY}));
}

TEST_F(TheWindow, ShowsTheCursorWhileItsCountIsNotNegative) {
    EXPECT_EQ(ShowCursor(FALSE), -1);
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_DISABLE);
    EXPECT_EQ(ShowCursor(FALSE), -2);
    EXPECT_EQ(ShowCursor(TRUE), -1);
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_DISABLE);
    EXPECT_EQ(ShowCursor(TRUE), 0);
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_ENABLE);
    EXPECT_EQ(LoadIconA(nullptr, "any"), nullptr);
    EXPECT_EQ(LoadCursorA(nullptr, IDC_ARROW), HCURSOR(SDL_GetDefaultCursor()));
    EXPECT_EQ(LoadCursorA(nullptr, nullptr), nullptr);
}

TEST_F(TheWindow, IsTwiceTheDisplayWhereTheDesktopHasRoom) {
    const struct {
        SDL_Rect room;
        std::pair<int, int> size;
    } cases[] = {{{0, 0, 1920, 1040}, {1280, 960}},
                 {{0, 0, 1366, 768}, {640, 480}},
                 {{0, 0, 1280, 2000}, {640, 480}}, // no room for borders
                 {{0, 0, 2000, 960}, {640, 480}},
                 {{0, 0, 0, 0}, {640, 480}}}; // nobody knows
    for (const auto& c : cases) {
        desktopRoom = c.room;
        closeTestWindow();
        openTestWindow();
        EXPECT_EQ(sizeOfWindow(), c.size) << c.room.w;
    }
}

TEST_F(TheWindow, CoversTheScreenInTheDisplayModeOnly) {
    DEVMODEA mode = {};
    ASSERT_TRUE(EnumDisplaySettingsA(nullptr, 0, &mode));
    SDL_Rect desktop;
    SDL_GetDisplayBounds(0, &desktop);
    const std::pair whole{desktop.w, desktop.h};
    EXPECT_EQ(ChangeDisplaySettingsA(&mode, 0), DISP_CHANGE_SUCCESSFUL);
    EXPECT_TRUE(isFullScreen());
    EXPECT_EQ(sizeOfWindow(), whole);
    EXPECT_EQ(ChangeDisplaySettingsA(nullptr, 0), DISP_CHANGE_SUCCESSFUL);
    EXPECT_TRUE(SDL_GetWindowFlags(sdlWindow()) & SDL_WINDOW_HIDDEN);
    EXPECT_FALSE(isFullScreen());
    EXPECT_EQ(sizeOfWindow(), (std::pair{640, 480}));
    EXPECT_FALSE(ShowWindow(window, SW_SHOW)) << "it was hidden";
    EXPECT_FALSE(isFullScreen());

    closeTestWindow();
    ChangeDisplaySettingsA(&mode, 0);
    window = openTestWindow();
    EXPECT_FALSE(isFullScreen());
    ShowWindow(window, SW_SHOW);
    EXPECT_TRUE(isFullScreen());
    EXPECT_EQ(sizeOfWindow(), whole);
    pushKey(SDL_SCANCODE_RETURN, KMOD_LALT);
    numbersNow();
    EXPECT_EQ(sizeOfWindow(), (std::pair{640, 480}));
    ChangeDisplaySettingsA(nullptr, 0);
}

TEST(DisplayMode, IsOneOf640By480In16Bits) {
    openTestWindow();
    closeTestWindow();
    DEVMODEA mode = {};
    ASSERT_TRUE(EnumDisplaySettingsA(nullptr, 0, &mode));
    EXPECT_EQ(mode.dmSize, sizeof mode);
    EXPECT_EQ(mode.dmFields, DM_BITSPERPEL | DM_PELSWIDTH | DM_PELSHEIGHT);
    EXPECT_EQ(mode.dmBitsPerPel, 16U);
    EXPECT_EQ(mode.dmPelsWidth, 640U);
    EXPECT_EQ(mode.dmPelsHeight, 480U);
    for (DWORD DEVMODEA::*field :
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
