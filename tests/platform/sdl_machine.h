// What the tests of the provider share: one window on a display in memory, invented keys and
// events, and a clock that can be stopped.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <SDL.h>
#include <dlfcn.h>
#include <gtest/gtest.h>

#include "platform/sdl/window_handle.h"
#include "platform/windows_api.h"

using Numbers = std::vector<UINT>; // of messages

inline std::optional<Uint64> stoppedClock;    // milliseconds; without a value SDL's clock runs
inline std::optional<SDL_Rect> roomOnDesktop; // without a value the display's own
inline std::optional<std::string> driver;     // without a value the one that SDL uses
inline int refreshRate = 0;                   // of the display; 0: not known
inline Uint32 moreFlags = 0;                  // that every window has
inline bool hasWindowManager = true;          // which makes a window as large as the screen
inline int framesShown = 0;
inline Uint64 clockJump = 0; // backwards, in counts
inline std::function<void()> whenBoxIsPainted;

template <typename Function, typename... Arguments>
auto callSdl(const char* name, Function*, Arguments... arguments) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name))(arguments...);
}

// The linker takes these instead of SDL's. Without a screen there is nothing to swap.
[[gnu::used]] inline Uint64 SDLCALL SDL_GetPerformanceCounter() {
    return callSdl(__func__, SDL_GetPerformanceCounter) - clockJump;
}

[[gnu::used]] inline Uint64 SDLCALL SDL_GetTicks64() {
    return stoppedClock.value_or(SDL_GetTicks());
}

[[gnu::used]] inline int SDLCALL SDL_GetDisplayUsableBounds(int display, SDL_Rect* room) {
    if (!roomOnDesktop) { return SDL_GetDisplayBounds(display, room); }
    *room = *roomOnDesktop;
    return 0;
}

[[gnu::used]] inline int SDLCALL SDL_GetCurrentDisplayMode(int, SDL_DisplayMode* mode) {
    *mode = {};
    mode->refresh_rate = refreshRate;
    return 0;
}

[[gnu::used]] inline void SDLCALL SDL_GL_SwapWindow(SDL_Window*) {
    ++framesShown;
}

[[gnu::used]] inline const char* SDLCALL SDL_GetCurrentVideoDriver() {
    return driver ? driver->c_str() : callSdl(__func__, SDL_GetCurrentVideoDriver);
}

[[gnu::used]] inline Uint32 SDLCALL SDL_GetWindowFlags(SDL_Window* window) {
    return callSdl(__func__, SDL_GetWindowFlags, window) | moreFlags;
}

[[gnu::used]] inline int SDLCALL SDL_SetWindowFullscreen(SDL_Window* window, Uint32 flags) {
    return hasWindowManager ? callSdl(__func__, SDL_SetWindowFullscreen, window, flags) : 0;
}

[[gnu::used]] inline int SDLCALL SDL_UpdateWindowSurface(SDL_Window*) {
    if (whenBoxIsPainted) { std::exchange(whenBoxIsPainted, nullptr)(); }
    return 0;
}

// The window procedure records what it receives. It returns what `answers` holds for a message; all
// others it leaves to DefWindowProcA.
inline Numbers heard;
inline std::map<UINT, LRESULT> answers;

inline LRESULT CALLBACK testProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    heard.push_back(message);
    const auto found = answers.find(message);
    return found != answers.end() ? found->second : DefWindowProcA(window, message, wParam, lParam);
}

// Opens the window, hidden, of the class "Test".
inline HWND openTestWindow() {
    setenv("SDL_VIDEODRIVER", "offscreen", 0);
    WNDCLASSA windowClass = {};
    windowClass.lpszClassName = "Test";
    windowClass.lpfnWndProc = testProcedure;
    RegisterClassA(&windowClass);
    return CreateWindowExA(0, "Test", "A title", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
}

inline SDL_Window* sdlWindow() {
    return currentWindow()->sdl;
}

inline bool hasFlag(SDL_WindowFlags flag) {
    return (SDL_GetWindowFlags(sdlWindow()) & flag) != 0;
}

// What SDL knows of a key: 1 while it is held.
inline Uint8& keyState(SDL_Scancode place) {
    return const_cast<Uint8*>(SDL_GetKeyboardState(nullptr))[place];
}

using Codes = std::vector<int>; // virtual-key codes

inline Codes heldCodes() {
    Codes held;
    for (int code = 1; code < 256; ++code) {
        if (GetAsyncKeyState(code) < 0) { held.push_back(code); }
    }
    return held;
}

// A key with the label of an English keyboard.
inline SDL_Event keyEvent(SDL_Scancode place, int modifiers = KMOD_NONE, bool repeat = false,
                          SDL_EventType type = SDL_KEYDOWN) {
    SDL_Event event = {};
    event.type = type;
    event.key.keysym = {place, SDL_GetKeyFromScancode(place), static_cast<Uint16>(modifiers), 0};
    event.key.repeat = repeat ? 1 : 0;
    return event;
}

inline void push(SDL_Event event) {
    SDL_PushEvent(&event);
}

inline void pushKey(SDL_Scancode place, int modifiers = KMOD_NONE, bool repeat = false) {
    push(keyEvent(place, modifiers, repeat));
}

inline SDL_Event plainEvent(SDL_EventType type, SDL_WindowEventID what = SDL_WINDOWEVENT_NONE) {
    SDL_Event event = {};
    event.type = type;
    event.window.windowID = SDL_GetWindowID(sdlWindow());
    event.window.event = static_cast<Uint8>(what);
    return event;
}

inline void pushEvent(SDL_EventType type, SDL_WindowEventID what = SDL_WINDOWEVENT_NONE) {
    push(plainEvent(type, what));
}

// Takes and dispatches every message that waits, at most as many as no test has.
inline std::vector<MSG> messagesNow() {
    std::vector<MSG> messages;
    MSG message = {};
    while (messages.size() < 30'000 && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        messages.push_back(message);
        DispatchMessageA(&message);
    }
    return messages;
}

// The keys of the messages that wait; -1 for a message of another kind.
inline Codes pressedNow() {
    Codes codes;
    for (const MSG& message : messagesNow()) {
        codes.push_back(message.message == WM_KEYDOWN ? static_cast<int>(message.wParam) : -1);
    }
    return codes;
}

// What the window procedure has received since the last call.
inline Numbers heardNow() {
    messagesNow();
    return std::exchange(heard, {});
}

// The system's text for an error.
inline std::string lastErrorWords(DWORD error = GetLastError()) {
    constexpr DWORD flags = FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM;
    char* text = nullptr;
    const DWORD length =
        FormatMessageA(flags, nullptr, error, 0, reinterpret_cast<char*>(&text), 0, nullptr);
    std::string words(text, length);
    LocalFree(text);
    return words;
}

// How many files, folders and pipes the process has open.
inline auto openFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

// A folder of the test's own; all files must be closed at the end.
struct InFolder : testing::Test {
    InFolder() { mkdtemp(folder.data()); }
    ~InFolder() override {
        EXPECT_EQ(openFiles(), openBefore) << "none is left open";
        std::filesystem::remove_all(folder);
    }
    std::string folder = std::filesystem::temp_directory_path() / "glorbix_XXXXXX";
    const std::ptrdiff_t openBefore = openFiles();
};

// The window is shown and has no messages waiting; WM_CLOSE does not close it.
struct OnSdl : testing::Test {
    OnSdl() {
        ShowWindow(window, SW_SHOW);
        heardNow();
        answers = {{WM_CLOSE, 0}};
    }
    ~OnSdl() override {
        stoppedClock.reset();
        driver.reset();
        roomOnDesktop.reset();
        refreshRate = 0;
        moreFlags = 0;
        answers.clear();
        DefWindowProcA(currentWindow(), WM_CLOSE, 0, 0);
        heard.clear();
    }
    const HWND window = openTestWindow();
};
