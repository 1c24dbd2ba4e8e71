#include "platform/sdl/messages.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <optional>

#include <SDL.h>

#include "platform/sdl/input.h"
#include "platform/sdl/sequencer.h"
#include "platform/sdl/timers.h"
#include "platform/sdl/window.h"

namespace {

constexpr std::size_t queueRoom = 10000; // messages

struct Queue {
    std::deque<MSG> posted;
    std::deque<MSG> input;
    std::optional<int> quitCode;
};

// Which messages a caller asks for.
struct Wanted {
    HWND window; // null: of any window
    UINT first;
    UINT last; // first and last 0: all

    bool accepts(const MSG& message) const {
        const bool rightWindow = !window || message.hwnd == window;
        const bool inRange = message.message >= first && message.message <= last;
        return rightWindow && (inRange || (first == 0 && last == 0));
    }
};

Queue queue;

MSG newMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG made = {};
    made.hwnd = window;
    made.message = message;
    made.wParam = wParam;
    made.lParam = lParam;
    made.time = static_cast<DWORD>(SDL_GetTicks64());
    return made;
}

bool takeFrom(std::deque<MSG>& messages, const Wanted& wanted, bool remove, MSG* taken) {
    const auto found = std::find_if(messages.begin(), messages.end(),
                                    [&](const MSG& message) { return wanted.accepts(message); });
    if (found == messages.end()) { return false; }
    *taken = *found;
    if (remove) { messages.erase(found); }
    return true;
}

// The request to quit passes every filter.
bool takeQuit(bool remove, MSG* taken) {
    if (!queue.quitCode) { return false; }
    *taken = newMessage(nullptr, WM_QUIT, static_cast<WPARAM>(*queue.quitCode), 0);
    if (remove) { queue.quitCode.reset(); }
    return true;
}

// The window asks until BeginPaint or the default answer has come.
bool takePaint(const Wanted& wanted, MSG* taken) {
    const HWND window = currentWindow();
    if (!window || !window->needsPaint) { return false; }
    *taken = newMessage(window, WM_PAINT, 0, 0);
    return wanted.accepts(*taken);
}

bool takeTimer(const Wanted& wanted, bool remove, MSG* taken) {
    const Timer* timer = dueTimer(SDL_GetTicks64());
    if (!timer) { return false; }
    *taken = newMessage(timer->window, WM_TIMER, timer->number,
                        reinterpret_cast<LPARAM>(timer->callback));
    if (!wanted.accepts(*taken)) { return false; }
    if (remove) { rearmTimer(*timer, SDL_GetTicks64()); }
    return true;
}

} // namespace

void postInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (queue.input.size() < queueRoom) {
        queue.input.push_back(newMessage(window, message, wParam, lParam));
    }
}

void removePostedMessages(UINT message, WPARAM wParam) {
    std::erase_if(queue.posted, [&](const MSG& posted) {
        return posted.message == message && posted.wParam == wParam;
    });
}

BOOL WINAPI PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove) {
    if (!message) { return FALSE; }
    const Wanted wanted = {window, first, last};
    const bool removing = (remove & PM_REMOVE) != 0;
    updateSequencer();
    if (takeFrom(queue.posted, wanted, removing, message)) { return TRUE; }
    pollInput();
    const bool found = takeQuit(removing, message) ||
                       takeFrom(queue.input, wanted, removing, message) ||
                       takePaint(wanted, message) || takeTimer(wanted, removing, message);
    return found ? TRUE : FALSE;
}

BOOL WINAPI TranslateMessage(const MSG* message) {
    return message && message->message == WM_KEYDOWN ? TRUE : FALSE;
}

LRESULT WINAPI DispatchMessageA(const MSG* message) {
    const HWND window = currentWindow();
    if (!message) { return 0; }
    if (message->message == WM_TIMER && message->lParam != 0) {
        reinterpret_cast<TIMERPROC>(message->lParam)(message->hwnd, WM_TIMER, message->wParam,
                                                     message->time);
        return 0;
    }
    if (!window || message->hwnd != window) { return 0; }
    return window->procedure(window, message->message, message->wParam, message->lParam);
}

BOOL WINAPI PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (queue.posted.size() >= queueRoom) { return FALSE; }
    queue.posted.push_back(newMessage(window, message, wParam, lParam));
    return TRUE;
}

void WINAPI PostQuitMessage(int exitCode) {
    queue.quitCode = exitCode;
}
