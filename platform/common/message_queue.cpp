#include "platform/common/message_queue.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <optional>

#include "platform/common/provider.h"

namespace {

constexpr std::size_t capacity = 10000; // messages of each kind

struct Queue {
    std::deque<MSG> posted;
    std::deque<MSG> input;
    std::optional<int> quitCode;
    bool askedToEnd = false;
};

Queue queue;

bool takeFrom(std::deque<MSG>& messages, const MessageFilter& filter, bool remove, MSG* taken) {
    const auto found = std::find_if(messages.begin(), messages.end(),
                                    [&](const MSG& message) { return filter.accepts(message); });
    if (found == messages.end()) { return false; }
    *taken = *found;
    if (!remove) { return true; }
    messages.erase(found);
    queue.askedToEnd |= taken->message == WM_CLOSE || taken->message == WM_DESTROY;
    return true;
}

} // namespace

bool MessageFilter::accepts(const MSG& message) const {
    const bool rightWindow = window == nullptr || message.hwnd == window;
    const bool inRange = message.message >= first && message.message <= last;
    return rightWindow && (inRange || (first == 0 && last == 0));
}

MSG newMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG made = {};
    made.hwnd = window;
    made.message = message;
    made.wParam = wParam;
    made.lParam = lParam;
    made.time = static_cast<DWORD>(uptime());
    return made;
}

void postInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (queue.input.size() >= capacity) { return; }
    queue.input.push_back(newMessage(window, message, wParam, lParam));
}

void removePostedMessages(UINT message, WPARAM wParam) {
    std::erase_if(queue.posted, [&](const MSG& posted) {
        return posted.message == message && posted.wParam == wParam;
    });
}

bool takePosted(const MessageFilter& filter, bool remove, MSG* taken) {
    return takeFrom(queue.posted, filter, remove, taken);
}

bool takeQuit(bool remove, MSG* taken) {
    if (!queue.quitCode) { return false; }
    *taken = newMessage(nullptr, WM_QUIT, static_cast<WPARAM>(*queue.quitCode), 0);
    if (remove) { queue.quitCode.reset(); }
    return true;
}

bool takeInput(const MessageFilter& filter, bool remove, MSG* taken) {
    return takeFrom(queue.input, filter, remove, taken);
}

bool wasAskedToEnd() {
    return queue.askedToEnd;
}

BOOL WINAPI PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (queue.posted.size() >= capacity) { return FALSE; }
    queue.posted.push_back(newMessage(window, message, wParam, lParam));
    return TRUE;
}

void WINAPI PostQuitMessage(int exitCode) {
    queue.quitCode = exitCode;
}
