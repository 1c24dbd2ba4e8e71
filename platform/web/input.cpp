// The player's keys, the focus, and the wait for the next frame. The page calls the functions at
// the end of this file when something happens, always while the game waits in pageWaitForFrame.

#include <bitset>

#include <emscripten.h>

#include "platform/common/key_repeat.h"
#include "platform/common/message_queue.h"
#include "platform/common/provider.h"
#include "platform/web/frame.h"
#include "platform/web/page_calls.h"
#include "platform/web/window_handle.h"
#include "platform/windows_api.h"

namespace {

constexpr std::size_t keyCount = 256; // virtual-key codes

struct Input {
    std::bitset<keyCount> held;
    bool pageFocused = false;
    bool focusIsNew = false; // the page got the focus after the last frame was drawn
};

Input input;
bool frameIsShown = false;

bool isKey(int key) {
    return key > 0 && key < static_cast<int>(keyCount);
}

void reportFocus(bool focused) {
    if (gameWindow.focused == focused) { return; }
    gameWindow.focused = focused;
    postInput(&gameWindow, focused ? WM_SETFOCUS : WM_KILLFOCUS);
}

// A browser may have stopped the page for any time before it gives the focus back. The game
// measures that time in the next tick, which must be one of the pause: the focus is reported one
// frame later.
void updateFocus() {
    if (currentWindow() == nullptr || !gameWindow.shown) { return; }
    if (!input.pageFocused || !input.focusIsNew) { reportFocus(input.pageFocused); }
    input.focusIsNew = false;
}

} // namespace

void noteFrameShown() {
    frameIsShown = true;
}

void pollInput() {
    if (frameIsShown) {
        frameIsShown = false;
        pageWaitForFrame();
    }
    updateFocus();
}

SHORT WINAPI GetAsyncKeyState(int key) {
    constexpr auto heldNow = static_cast<SHORT>(0x8000);
    return isKey(key) && input.held[static_cast<std::size_t>(key)] ? heldNow : SHORT{0};
}

extern "C" {

EMSCRIPTEN_KEEPALIVE void programKeyDown(int key, int repeated) {
    constexpr LPARAM onePress = 1;
    constexpr LPARAM wasDown = LPARAM{1} << 30;
    if (!isKey(key) || currentWindow() == nullptr) { return; }
    input.held.set(static_cast<std::size_t>(key));
    if (repeated != 0 && !repeatsWhileHeld(key)) { return; }
    postInput(&gameWindow, WM_KEYDOWN, static_cast<WPARAM>(key),
              repeated != 0 ? onePress | wasDown : onePress);
}

EMSCRIPTEN_KEEPALIVE void programKeyUp(int key) {
    if (isKey(key)) { input.held.reset(static_cast<std::size_t>(key)); }
}

EMSCRIPTEN_KEEPALIVE void programFocus(int focused) {
    input.pageFocused = focused != 0;
    input.focusIsNew = input.pageFocused;
    if (!input.pageFocused) { input.held.reset(); }
}
}
