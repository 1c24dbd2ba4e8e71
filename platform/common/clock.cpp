#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/windows_api.h"

namespace {

using Clock = std::chrono::steady_clock;
using Count = std::chrono::nanoseconds;

// The program was stopped, or the machine slept. In a tick of that length the marble would cross
// the course, so the count stands still meanwhile.
constexpr Count longestTick = std::chrono::seconds(1);

// The time between this call and the one before.
Count timePassed() {
    static Clock::time_point last = Clock::now();
    const Clock::time_point now = Clock::now();
    return std::chrono::duration_cast<Count>(now - std::exchange(last, now));
}

} // namespace

BOOL WINAPI QueryPerformanceFrequency(LARGE_INTEGER* frequency) {
    frequency->QuadPart = Count::period::den;
    return TRUE;
}

// Every tick has a length: the count increases even where the system's clock does not.
BOOL WINAPI QueryPerformanceCounter(LARGE_INTEGER* counter) {
    static LONGLONG count = 0;
    const Count passed = timePassed();
    count += passed > longestTick ? 1 : std::max<LONGLONG>(passed.count(), 1);
    counter->QuadPart = count;
    return TRUE;
}
