#include "platform/sdl/frame_pace.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "platform/sdl/desktop.h"
#include "platform/sdl/event_wait.h"

namespace {

constexpr double highestRate = 250.0; // frames a second
constexpr double lowestRate = 20.0;   // frames a second
constexpr int stillFrame = 40;        // milliseconds
constexpr int hiddenFrame = 100;      // milliseconds

// Above the display's own rate by more than its error, or a frame could miss its vertical sync.
constexpr double rateOfDisplays = 1.1;

Uint64 lastFrame = 0; // by SDL_GetPerformanceCounter

double frameRate(SDL_Window* window) {
    SDL_DisplayMode mode = {};
    if (SDL_GetCurrentDisplayMode(displayOf(window), &mode) != 0 || mode.refresh_rate <= 0) {
        return highestRate;
    }
    return std::clamp(rateOfDisplays * mode.refresh_rate, lowestRate, highestRate);
}

// Negative when the clock has jumped back.
double secondsSinceLastFrame() {
    const auto passed = static_cast<Sint64>(SDL_GetPerformanceCounter() - lastFrame);
    return static_cast<double>(passed) / static_cast<double>(SDL_GetPerformanceFrequency());
}

} // namespace

void waitForNextFrame(SDL_Window* window) {
    const double shortestFrame = 1.0 / frameRate(window); // seconds
    const double rest = shortestFrame - std::clamp(secondsSinceLastFrame(), 0.0, shortestFrame);
    std::this_thread::sleep_for(std::chrono::duration<double>(rest));
    lastFrame = SDL_GetPerformanceCounter();
}

void waitWhileStill() {
    waitForEvent(stillFrame);
}

void waitWhileHidden() {
    waitForEvent(hiddenFrame);
}
