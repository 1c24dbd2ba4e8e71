#include "platform/sdl/frame_pace.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "platform/sdl/desktop.h"
#include "platform/sdl/event_wait.h"

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr double highestRate = 250.0; // frames a second
constexpr int stillFrame = 40;        // milliseconds
constexpr int hiddenFrame = 100;      // milliseconds

// Above the display's own rate by more than its error, or a frame could miss its vertical sync.
constexpr double rateOfDisplays = 1.1;

Clock::time_point lastFrame;

double frameRate(SDL_Window* window) {
    SDL_DisplayMode mode = {};
    if (SDL_GetCurrentDisplayMode(displayOf(window), &mode) != 0 || mode.refresh_rate <= 0) {
        return highestRate;
    }
    return std::min(rateOfDisplays * mode.refresh_rate, highestRate);
}

} // namespace

void waitForNextFrame(SDL_Window* window) {
    const Seconds shortestFrame(1.0 / frameRate(window));
    std::this_thread::sleep_until(lastFrame +
                                  std::chrono::duration_cast<Clock::duration>(shortestFrame));
    lastFrame = Clock::now();
}

void waitWhileStill() {
    waitForEvent(stillFrame);
}

void waitWhileHidden() {
    waitForEvent(hiddenFrame);
}
