#include "platform/common/timers.h"

#include <algorithm>
#include <vector>

#include "platform/common/provider.h"

namespace {

constexpr std::uint64_t shortestPeriod = 10; // milliseconds

std::vector<Timer> timers;

// For a timer without a window, whose number the caller cannot choose.
UINT_PTR freeNumber() {
    UINT_PTR highest = 0;
    for (const Timer& timer : timers) {
        highest = std::max(highest, timer.number);
    }
    return highest + 1;
}

} // namespace

Timer* dueTimer(std::uint64_t now) {
    const auto first = std::min_element(timers.begin(), timers.end(),
                                        [](auto& a, auto& b) { return a.due < b.due; });
    return first != timers.end() && first->due <= now ? &*first : nullptr;
}

void rearmTimer(Timer& timer, std::uint64_t now) {
    timer.due += timer.period * ((now - timer.due) / timer.period + 1);
}

UINT_PTR WINAPI SetTimer(HWND window, UINT_PTR timer, UINT period, TIMERPROC callback) {
    const UINT_PTR number = window != nullptr && timer != 0 ? timer : freeNumber();
    const std::uint64_t used = std::max<std::uint64_t>(period, shortestPeriod);
    const Timer made = {window, number, used, uptime() + used, callback};
    const auto same = std::find_if(timers.begin(), timers.end(), [&](const Timer& other) {
        return other.window == window && other.number == number;
    });
    if (same != timers.end()) {
        *same = made;
    } else {
        timers.push_back(made);
    }
    return number;
}
