#include "platform/sdl/input.h"

#include "platform/common/key_repeat.h"
#include "platform/common/message_queue.h"
#include "platform/sdl/full_screen.h"
#include "platform/sdl/gamepad.h"
#include "platform/sdl/key_map.h"
#include "platform/sdl/keyboard.h"
#include "platform/sdl/still_picture.h"
#include "platform/sdl/window_handle.h"

namespace {

// A window that is shown or raised may lose the keyboard and get it back at once. The game hears
// only what has come of it.
void postFocus(WindowHandle& window) {
    if (window.focused == window.hasKeyboard) { return; }
    window.focused = window.hasKeyboard;
    postInput(&window, window.focused ? WM_SETFOCUS : WM_KILLFOCUS);
}

// The game gets no key that is pressed together with Alt.
void handleAltKey(WindowHandle& window, int key) {
    if (key == VK_RETURN) { toggleFullScreen(); }
    if (key == VK_F4) { postInput(&window, WM_CLOSE); }
}

void handleKeyDown(WindowHandle& window, const SDL_KeyboardEvent& event) {
    constexpr LPARAM onePress = 1;
    constexpr LPARAM wasDown = LPARAM{1} << 30;
    const int key = virtualKeyOf(event.keysym);
    const bool repeated = event.repeat != 0;
    if (key == 0 || (repeated && !repeatsWhileHeld(key))) { return; }
    postFocus(window);
    if ((event.keysym.mod & KMOD_ALT) != 0) {
        handleAltKey(window, key);
    } else {
        postInput(&window, WM_KEYDOWN, static_cast<WPARAM>(key),
                  repeated ? onePress | wasDown : onePress);
    }
}

// SDL_PollEvent would stop where an earlier wait for events has left its mark in the queue.
bool takeEvent(SDL_Event& event) {
    return SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) > 0;
}

} // namespace

void handleGameWindowEvent(const SDL_WindowEvent& event) {
    const HWND window = currentWindow();
    if (window == nullptr) { return; }
    switch (event.event) {
    case SDL_WINDOWEVENT_CLOSE: postInput(window, WM_CLOSE); break;
    case SDL_WINDOWEVENT_FOCUS_GAINED: window->hasKeyboard = true; break;
    case SDL_WINDOWEVENT_FOCUS_LOST: window->hasKeyboard = false; break;
    case SDL_WINDOWEVENT_EXPOSED:
    case SDL_WINDOWEVENT_SIZE_CHANGED:
        window->needsPaint = true;
        forgetPicture();
        break;
    default: break;
    }
}

void pollInput() {
    const HWND window = currentWindow();
    if (window == nullptr) { return; }
    SDL_PumpEvents();
    SDL_Event event;
    while (takeEvent(event)) {
        switch (event.type) {
        case SDL_QUIT: postInput(window, WM_CLOSE); break; // also for SIGINT and SIGTERM
        case SDL_WINDOWEVENT: handleGameWindowEvent(event.window); break;
        case SDL_KEYDOWN: handleKeyDown(*window, event.key); break;
        default: handleGamepadEvent(event); break;
        }
    }
    postFocus(*window);
}
