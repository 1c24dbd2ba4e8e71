// How much of the processor the game's frames take on SDL's offscreen driver, which knows no
// vertical sync.
#include <chrono>
#include <ctime>

#include <SDL.h>
#include <gtest/gtest.h>

#include "platform/sdl/window.h"
#include "platform/windows_api.h"

namespace {

LRESULT CALLBACK doNothing(HWND, UINT, WPARAM, LPARAM) {
    return 0;
}

class Frames : public testing::Test {
protected:
    void SetUp() override {
        SDL_SetHint(SDL_HINT_VIDEODRIVER, "offscreen");
        WNDCLASSA windowClass = {};
        windowClass.lpszClassName = "Frames";
        windowClass.lpfnWndProc = doNothing;
        RegisterClassA(&windowClass);
        window =
            CreateWindowExA(0, "Frames", "", 0, 0, 0, 640, 480, nullptr, nullptr, nullptr, nullptr);
        ASSERT_NE(window, nullptr);
        surface = GetDC(window);
        ASSERT_EQ(ChoosePixelFormat(surface, &format), 1);
        ASSERT_TRUE(wglMakeCurrent(surface, wglCreateContext(surface)));
        ShowWindow(window, SW_SHOW);
        secondsFor(1);
    }

    void TearDown() override { closeWindow(); }

    // As the game's loop does: all messages, then a frame.
    double secondsFor(int frames) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < frames; ++i) {
            MSG message;
            while (PeekMessageA(&message, window, 0, 0, PM_REMOVE)) {
                DefWindowProcA(window, message.message, 0, 0);
            }
            EXPECT_TRUE(SwapBuffers(surface));
        }
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    PIXELFORMATDESCRIPTOR format = {};
    HWND window = nullptr;
    HDC surface = nullptr;
};

TEST_F(Frames, ComeNoFasterThan250ASecond) {
    EXPECT_GE(secondsFor(100), 0.399);
}

TEST_F(Frames, WaitForAnEventWhileNobodySeesThem) {
    SDL_HideWindow(window->sdl);
    secondsFor(1);
    const std::clock_t before = std::clock();
    EXPECT_GE(secondsFor(5), 0.45);
    EXPECT_LT(static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC, 0.1);
    SDL_Event key = {};
    key.type = SDL_KEYDOWN;
    SDL_PushEvent(&key);
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 20; ++i) {
        SwapBuffers(surface); // with the key still to be taken
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    SDL_ShowWindow(window->sdl);
    EXPECT_LT(secondsFor(20), 1.0) << "seen again";
}

} // namespace
