// The machine on SDL as its tests use it: one window on a display that nobody sees, keys and events
// made up, and a clock that can be stopped.
#pragma once

#include <cstdlib>
#include <map>
#include <optional>
#include <vector>

#include <SDL.h>
#include <gtest/gtest.h>

#include "platform/windows_api.h"

// What SDL_GetTicks64 gives, in milliseconds, while it has a value.
extern std::optional<Uint64> stoppedClock;

// The part of the desktop that windows may use, while it has a value.
extern std::optional<SDL_Rect> desktopRoom;

// The window procedure writes down the numbers of the messages that it hears. It returns what
// `answers` holds for a message; all others it leaves to DefWindowProcA.
extern std::vector<UINT> heard;
extern std::map<UINT, LRESULT> answers;
LRESULT CALLBACK testProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Opens the window, hidden, with the class "Test", which it registers.
HWND openTestWindow();
void closeTestWindow();
SDL_Window* sdlWindow(); // null while there is none

// Puts events into SDL's queue. The keys' labels are those of an English keyboard.
void pushKey(SDL_Scancode place, int modifiers = KMOD_NONE, bool repeat = false);
void pushWindowEvent(SDL_WindowEventID event);
void pushEvent(SDL_EventType type);

// Sets what SDL believes of a key.
void hold(SDL_Scancode place, bool down);

// Takes and dispatches every message that waits.
std::vector<MSG> messagesNow();
std::vector<UINT> numbersNow(); // the same, their numbers only

using Numbers = std::vector<UINT>;

// The window is shown and has nothing to tell; WM_CLOSE does not close it.
struct OnSdl : testing::Test {
    OnSdl();
    ~OnSdl() override;

    HWND window;
};

// Runs a story in a process of its own, on that display ("": the one that SDL finds), and expects
// it to write a line like `complaint`.
#define EXPECT_ALONE(driver, story, complaint)                                                     \
    EXPECT_EXIT(                                                                                   \
        {                                                                                          \
            setDisplay(driver);                                                                    \
            story();                                                                               \
            std::exit(testing::Test::HasFailure() ? 1 : 0);                                        \
        },                                                                                         \
        testing::ExitedWithCode(0), complaint)
void setDisplay(const char* driver);
