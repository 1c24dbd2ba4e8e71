// The game's timers. Times are milliseconds of `uptime` (provider.h).
#pragma once

#include <cstdint>

#include "platform/windows_api.h"

struct Timer {
    HWND window;
    UINT_PTR number;
    std::uint64_t period; // milliseconds, 10 or more
    std::uint64_t due;    // when it fires next
    TIMERPROC callback;   // called instead of the window procedure; null: none
};

// Returns the timer that has been due for the longest time, null when none is due.
Timer* dueTimer(std::uint64_t now);

// Sets `due` to the first whole period after `now`. Periods that have passed unseen are skipped.
void rearmTimer(Timer& timer, std::uint64_t now);
