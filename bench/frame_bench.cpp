// What a frame of the largest course costs on a real OpenGL: drawing, the same OpenGL calls
// replayed from a recording, showing it, and the arithmetic of its tick. Run it in the folder of
// the game's data. The times are those of the processor, in all threads: OpenGL in software has
// some of its own.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <GL/gl.h>
#include <SDL.h>

#include "app/display.h"
#include "app/frame.h"
#include "app/window.h"
#include "bench/gl_recording.h"
#include "bench/scene.h"
#include "platform/display_mode.h"
#include "platform/sdl/frame_pace.h"
#include "platform/sdl/shutdown.h"
#include "platform/windows_api.h"
#include "sim/camera.h"
#include "sim/level.h"
#include "sim/marble.h"
#include "sim/simulation.h"
#include "sim/view_frame.h"
#include "state/controls.h"
#include "state/game.h"

// The linker takes these instead of the provider's: no frame waits.
void waitForNextFrame(SDL_Window*) {}
void waitWhileStill() {}
void waitWhileHidden() {}

namespace {

HDC deviceContext = nullptr; // Game.deviceContext is null while frames are drawn but not shown

[[noreturn]] void fail(const std::string& why) {
    std::fprintf(stderr, "glorbix_frame_bench: %s\n", why.c_str());
    std::exit(EXIT_FAILURE);
}

void openWindow() {
    switchDisplayMode();
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = GameWindowProc;
    windowClass.lpszClassName = "Glorbix";
    RegisterClassA(&windowClass);
    Game.window = CreateWindowExA(0, "Glorbix", "Glorbix", WS_POPUP, 0, 0, screenWidth,
                                  screenHeight, nullptr, nullptr, nullptr, nullptr);
    if (Game.glContext == nullptr) { fail("there is no OpenGL"); }
    ShowWindow(Game.window, SW_SHOW);
    deviceContext = Game.deviceContext;
}

void loadLargestCourse() {
    std::string largest;
    std::int32_t mostHoles = -1;
    for (std::int32_t i = 0; i < Game.levelCount; ++i) {
        const std::string file = Game.levelFiles[static_cast<std::size_t>(i)].get();
        if (!level.load(file.c_str(), marble)) { fail("cannot load " + file); }
        if (level.holeCount > mostHoles) {
            mostHoles = level.holeCount;
            largest = file;
        }
    }
    if (!level.load(largest.c_str(), marble)) { fail("there is no course"); }
    Game.screen = Screen::Level;
}

void drawUnshown() {
    drawFrame();
    glFinish();
}

void lookAsPlayer() {
    Game.deviceContext = nullptr;
    Game.farSight = 0;
    Game.fogOn = 1;
    lookFromMarble();
    drawUnshown(); // the end of this frame clears the surface for the next one
}

void drawLevel(benchmark::State& state) {
    lookAsPlayer();
    for ([[maybe_unused]] auto _ : state) {
        drawUnshown();
    }
}

GlRecording recordFrame() {
    startRecording();
    drawUnshown();
    return stopRecording();
}

bool drawsTheSame(const GlRecording& frame) {
    const auto clear = frame.calls.end() - 1;
    replay({frame.calls.begin(), clear});
    const bool same = pictureOnSurface() == frame.picture;
    replay({clear, frame.calls.end()});
    return same;
}

void replayLevel(benchmark::State& state) {
    lookAsPlayer();
    const GlRecording frame = recordFrame();
    if (!drawsTheSame(frame)) { fail("the recording does not draw the frame"); }
    for ([[maybe_unused]] auto _ : state) {
        replay(frame.calls);
        glFinish();
    }
    state.counters["calls"] = static_cast<double>(frame.calls.size());
}

// Each picture is another one, as the provider does not show the same one again and again.
void showPicture(benchmark::State& state) {
    float grey = 0.0F;
    for ([[maybe_unused]] auto _ : state) {
        grey = 1.0F - grey;
        glClearColor(grey, grey, grey, 0.0F);
        glClear(GL_COLOR_BUFFER_BIT);
        SwapBuffers(deviceContext);
        glFinish();
    }
}

void simulateAndMoveCamera(benchmark::State& state) {
    lookAsPlayer();
    marble.setVelocity(Vector3(0.0F, 1.0F, 0.0F));
    const Marble rolling = marble;
    for ([[maybe_unused]] auto _ : state) {
        marble = rolling; // otherwise it would reach a hole, where a tick is cheap
        Game.turbo = fullTurbo;
        stepWorld({.left = true, .right = true, .up = true, .down = true, .turbo = true});
        updateCamera();
        benchmark::DoNotOptimize(viewFrame);
    }
    state.counters["holes"] = level.holeCount;
}

void drawRows(benchmark::State& state) {
    lookAsPlayer();
    Game.farSight = 1;
    Game.fogOn = 0;
    lookOverRows(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        drawUnshown();
    }
}

BENCHMARK(drawLevel)->MeasureProcessCPUTime();
BENCHMARK(replayLevel)->MeasureProcessCPUTime();
BENCHMARK(showPicture)->MeasureProcessCPUTime();
BENCHMARK(simulateAndMoveCamera)->MeasureProcessCPUTime();
BENCHMARK(drawRows)->Apply(overRows)->MeasureProcessCPUTime();

} // namespace

int main(int count, char* arguments[]) {
    benchmark::Initialize(&count, arguments);
    if (benchmark::ReportUnrecognizedArguments(count, arguments)) { return EXIT_FAILURE; }
    openWindow();
    loadLargestCourse();
    benchmark::AddCustomContext("renderer",
                                reinterpret_cast<const char*>(glGetString(GL_RENDERER)));
    benchmark::RunSpecifiedBenchmarks();
    Game.deviceContext = deviceContext;
    shutDown();
    return EXIT_SUCCESS;
}
