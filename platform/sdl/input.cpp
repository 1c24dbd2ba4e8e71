#include "platform/sdl/input.h"

#include "platform/sdl/full_screen.h"
#include "platform/sdl/keyboard.h"
#include "platform/sdl/message_queue.h"
#include "platform/sdl/window_handle.h"

namespace {

void handleFocus(WindowHandle& window, bool focused) {
    if (window.focused == focused) { return; }
    window.focused = focused;
    postInput(&window, focused ? WM_SETFOCUS : WM_KILLFOCUS);
}

// The game gets no key that is pressed together with Alt.
void handleAltKey(WindowHandle& window, int key, bool repeated) {
    if (repeated) { return; }
    if (key == VK_RETURN) { toggleFullScreen(); }
    if (key == VK_F4) { postInput(&window, WM_CLOSE); }
}

void handleKeyDown(WindowHandle& window, const SDL_KeyboardEvent& event) {
    constexpr LPARAM onePress = 1;
    constexpr LPARAM wasDown = LPARAM{1} << 30;
    const int key = virtualKeyOf(event.keysym);
    const bool repeated = event.repeat != 0;
    if (key == 0) { return; }
    if ((event.keysym.mod & KMOD_ALT) != 0) {
        handleAltKey(window, key, repeated);
    } else {
        postInput(&window, WM_KEYDOWN, static_cast<WPARAM>(key),
                  repeated ? onePress | wasDown : onePress);
    }
}

} // namespace

void handleGameWindowEvent(const SDL_WindowEvent& event) {
    const HWND window = currentWindow();
    if (window == nullptr) { return; }
    switch (event.event) {
    case SDL_WINDOWEVENT_CLOSE: postInput(window, WM_CLOSE); break;
    case SDL_WINDOWEVENT_FOCUS_GAINED: handleFocus(*window, true); break;
    case SDL_WINDOWEVENT_FOCUS_LOST: handleFocus(*window, false); break;
    case SDL_WINDOWEVENT_EXPOSED:
    case SDL_WINDOWEVENT_SIZE_CHANGED: window->needsPaint = true; break;
    default: break;
    }
}

void pollInput() {
    const HWND window = currentWindow();
    SDL_Event event;
    while (window != nullptr && SDL_PollEvent(&event) != 0) {
        switch (event.type) {
        case SDL_QUIT: postInput(window, WM_CLOSE); break; // also for SIGINT and SIGTERM
        case SDL_WINDOWEVENT: handleGameWindowEvent(event.window); break;
        case SDL_KEYDOWN: handleKeyDown(*window, event.key); break;
        default: break;
        }
    }
}
