// Takes messages in the order of their kinds and hands them to the game.

#include "platform/common/message_queue.h"
#include "platform/common/provider.h"
#include "platform/common/sequencer.h"
#include "platform/common/timers.h"
#include "platform/windows_api.h"

namespace {

// WM_PAINT is never removed: it comes again until the game has called BeginPaint or DefWindowProcA.
bool takePaint(const MessageFilter& filter, MSG* taken) {
    const HWND window = currentWindow();
    if (window == nullptr || !needsPaint()) { return false; }
    *taken = newMessage(window, WM_PAINT, 0, 0);
    return filter.accepts(*taken);
}

bool takeTimer(const MessageFilter& filter, bool remove, MSG* taken) {
    Timer* timer = dueTimer(uptime());
    if (timer == nullptr) { return false; }
    *taken = newMessage(timer->window, WM_TIMER, timer->number,
                        reinterpret_cast<LPARAM>(timer->callback));
    if (!filter.accepts(*taken)) { return false; }
    if (remove) { rearmTimer(*timer, uptime()); }
    return true;
}

} // namespace

BOOL WINAPI PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove) {
    if (message == nullptr) { return FALSE; }
    const MessageFilter filter = {window, first, last};
    const bool removing = (remove & PM_REMOVE) != 0;
    updateSequencer();
    if (takePosted(filter, removing, message)) { return TRUE; }
    pollInput();
    const bool found = takeQuit(removing, message) || takeInput(filter, removing, message) ||
                       takePaint(filter, message) || takeTimer(filter, removing, message);
    return found ? TRUE : FALSE;
}

BOOL WINAPI TranslateMessage(const MSG* message) {
    return message != nullptr && message->message == WM_KEYDOWN ? TRUE : FALSE;
}

LRESULT WINAPI DispatchMessageA(const MSG* message) {
    const HWND window = currentWindow();
    if (message == nullptr) { return 0; }
    if (message->message == WM_TIMER && message->lParam != 0) {
        reinterpret_cast<TIMERPROC>(message->lParam)(message->hwnd, WM_TIMER, message->wParam,
                                                     message->time);
        return 0;
    }
    if (window == nullptr || message->hwnd != window) { return 0; }
    return callWindowProcedure(message->message, message->wParam, message->lParam);
}
