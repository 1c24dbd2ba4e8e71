// Where the machine starts and stops, and machines that lack a display or OpenGL.
#include <filesystem>

#include "platform/sdl/errors.h"
#include "platform/sdl/machine.h"
#include "platform/sdl_machine.h"

namespace {

void findNoDisplay() {
    DEVMODEA mode = {0, 0, 16, 640, 480};
    EXPECT_EQ(GetAsyncKeyState(VK_UP), 0);
    EXPECT_EQ(ShowCursor(FALSE), -1);
    EXPECT_FALSE(EnumDisplaySettingsA(nullptr, 0, &mode));
    EXPECT_EQ(ChangeDisplaySettingsA(&mode, 0), DISP_CHANGE_FAILED);
    EXPECT_EQ(LoadCursorA(nullptr, IDC_ARROW), nullptr);
    EXPECT_FALSE(SDL_WasInit(SDL_INIT_VIDEO));
    EXPECT_EQ(openTestWindow(), nullptr);
    EXPECT_TRUE(machineFailed());
}

TEST(Machine, WithoutADisplaySaysSo) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_ALONE("none", findNoDisplay, "There is no display to play on: none not available\\.");
    if (!std::filesystem::exists("/dev/dri")) { // where SDL could find a screen without a desktop
        EXPECT_ALONE("", findNoDisplay, "There is no display to play on: neither Wayland nor X11");
    }
}

void findNoOpenGl() {
    const HDC surface = GetDC(openTestWindow());
    ASSERT_NE(surface, nullptr) << "a plain window opens";
    const PIXELFORMATDESCRIPTOR wanted = {};
    EXPECT_EQ(ChoosePixelFormat(surface, &wanted), 0);
    EXPECT_TRUE(machineFailed());
    EXPECT_FALSE(SetPixelFormat(surface, 1, &wanted));
    EXPECT_EQ(wglCreateContext(surface), nullptr);
    ChoosePixelFormat(surface, &wanted);
    complain(lastErrorText());
    stopMachine();
}

TEST(Machine, WithoutOpenGlOpensAWindowToSaySo) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_ALONE("dummy", findNoOpenGl, "glorbix: OpenGL could not be started: .*dummy.*\\.");
}

void startAndStop() {
    EXPECT_TRUE(startVideo());
    EXPECT_FALSE(SDL_IsTextInputActive()) << "an input method would take the letters";
    EXPECT_FALSE(SDL_GetHintBoolean(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, SDL_TRUE));
    EXPECT_FALSE(SDL_GetHintBoolean(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, SDL_TRUE));
    EXPECT_FALSE(machineFailed());
    EXPECT_NE(openTestWindow(), nullptr);
    heard.clear();
    stopMachine();
    EXPECT_EQ(heard, Numbers{}) << "the game has ended before";
    EXPECT_EQ(sdlWindow(), nullptr);
    EXPECT_EQ(SDL_WasInit(0), 0U);
    complain("stopped");
}

TEST(Machine, GivesEverythingBack) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_ALONE("offscreen", startAndStop, "^glorbix: stopped\n$");
}

} // namespace
