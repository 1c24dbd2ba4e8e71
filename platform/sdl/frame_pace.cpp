#include "platform/sdl/frame_pace.h"

#include <chrono>
#include <thread>

#include <SDL.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds shortestFrame(4);
constexpr int hiddenFrame = 100; // milliseconds

Clock::time_point lastFrame;

} // namespace

void waitForNextFrame() {
    std::this_thread::sleep_until(lastFrame + shortestFrame);
    lastFrame = Clock::now();
}

void waitWhileHidden() {
    SDL_WaitEventTimeout(nullptr, hiddenFrame);
}
