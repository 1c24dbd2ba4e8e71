// Start and end of the machine, also where there is no display or no OpenGL.
#include "platform/sdl/machine.h"

#include <filesystem>

#include "platform/sdl/errors.h"
#include "platform/sdl_machine.h"

namespace {

// Runs a story in a process of its own, with that video driver of SDL ("": any) and no desktop, and
// expects it to write such a line on standard error.
void expectAlone(const char* driver, void (*story)(), const char* line) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto run = [&] {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "SDL_VIDEODRIVER"}) {
            unsetenv(name);
        }
        if (*driver) { setenv("SDL_VIDEODRIVER", driver, 1); }
        story();
        std::exit(testing::Test::HasFailure() ? 1 : 0);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), line);
}

void findNoDisplay() {
    DEVMODEA mode = {0, 0, 16, 640, 480};
    EXPECT_EQ(ShowCursor(FALSE), -1);
    EXPECT_FALSE(EnumDisplaySettingsA(nullptr, 0, &mode));
    EXPECT_EQ(ChangeDisplaySettingsA(&mode, 0), DISP_CHANGE_FAILED);
    EXPECT_FALSE(SDL_WasInit(SDL_INIT_VIDEO));
    EXPECT_EQ(openTestWindow(), nullptr);
    EXPECT_TRUE(machineFailed());
}

void findNoOpenGl() {
    const HDC surface = GetDC(openTestWindow());
    const PIXELFORMATDESCRIPTOR wanted = {};
    EXPECT_EQ(ChoosePixelFormat(surface, &wanted), 0);
    EXPECT_TRUE(machineFailed());
    EXPECT_FALSE(SetPixelFormat(surface, 1, &wanted) || wglCreateContext(surface));
    ChoosePixelFormat(surface, &wanted);
    complain(lastErrorText());
}

TEST(Machine, SaysWhatIsMissing) {
    expectAlone("none", findNoDisplay, "There is no display to play on: .*none.*\\.");
    if (!std::filesystem::exists("/dev/dri")) { // SDL may find a screen there without a desktop
        expectAlone("", findNoDisplay, "There is no display to play on: neither Wayland nor X11");
    }
    expectAlone("dummy", findNoOpenGl, "glorbix: OpenGL could not be started: .*dummy.*\\.");
}

void startAndStop() {
    EXPECT_NE(openTestWindow(), nullptr);
    EXPECT_FALSE(machineFailed());
    EXPECT_FALSE(SDL_IsTextInputActive()) << "an input method would take the letters";
    EXPECT_FALSE(SDL_GetHintBoolean(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, SDL_TRUE));
    EXPECT_FALSE(SDL_GetHintBoolean(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, SDL_TRUE));
    stopMachine();
    EXPECT_EQ(heard, Numbers{WM_CREATE}) << "the game has ended before";
    EXPECT_EQ(currentWindow(), nullptr);
    EXPECT_EQ(SDL_WasInit(0), 0U);
}

TEST(Machine, GivesEverythingBack) {
    expectAlone("offscreen", startAndStop, "^$");
}

} // namespace
