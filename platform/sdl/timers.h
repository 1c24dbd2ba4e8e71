// The timers of the game. A timer that comes due more than once before the game looks is due once.
#pragma once

#include <cstdint>

#include "platform/windows_api.h"

struct Timer {
    HWND window;
    UINT_PTR number;
    std::uint64_t period; // milliseconds
    std::uint64_t due;    // milliseconds since the start of SDL
    TIMERPROC callback;   // called instead of the window procedure; null: none
};

// The timer that has been due the longest at that time, null when none is.
const Timer* dueTimer(std::uint64_t now);

// Sets the timer to its next due time after `now`, keeping its beat.
void rearmTimer(const Timer& timer, std::uint64_t now);
