#include <algorithm>
#include <chrono>

#include "platform/windows_api.h"

namespace {

using Clock = std::chrono::steady_clock;
using Count = std::chrono::nanoseconds;

} // namespace

BOOL WINAPI QueryPerformanceFrequency(LARGE_INTEGER* frequency) {
    frequency->QuadPart = Count::period::den;
    return TRUE;
}

// The game divides by the length of a tick, so the count increases even where the system's clock
// does not.
BOOL WINAPI QueryPerformanceCounter(LARGE_INTEGER* counter) {
    static LONGLONG last = 0;
    const auto now = std::chrono::duration_cast<Count>(Clock::now().time_since_epoch()).count();
    last = std::max<LONGLONG>(now, last + 1);
    counter->QuadPart = last;
    return TRUE;
}
