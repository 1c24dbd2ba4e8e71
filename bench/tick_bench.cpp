// What the parts of a tick cost, by the number of holes in the level.
//
// There is no OpenGL context, so drawGround is measured without OpenGL's own work: traversal,
// projection and calls.
#include <benchmark/benchmark.h>

#include "sim/camera.h"
#include "sim/level.h"
#include "sim/marble.h"
#include "sim/simulation.h"
#include "sim/view_frame.h"
#include "state/game.h"

namespace {

constexpr int fewHoles = 10;
constexpr int manyHoles = 160;

// Makes wells and mounds in two rows, away from the middle of the course.
void makeHoles(int count) {
    level.makeHoles(count);
    float side = -1.0F;
    float along = 0.0F;
    for (Hole& hole : level.allHoles()) {
        hole = {side * 600.0F, -5900.0F + 11800.0F * along, 60.0F, side * 120.0F};
        side = -side;
        along += 1.0F / static_cast<float>(count);
    }
}

// Puts the marble in the middle of the course and lets the camera settle behind it.
void settle(benchmark::State& state) {
    makeHoles(static_cast<int>(state.range(0)));
    Game.levelDone = 0;
    Game.clock = levelTime / 2;
    Game.frameTime = 0.1F;
    placeMarble(0.0F, 0.0F);
    cameraPosition = marble.getPosition() + Vector3(0.0F, -1.0F, -1.0F);
    for (int i = 0; i < 100; ++i) {
        updateCamera();
    }
    Game.frameTime = 1.0F / 60.0F;
}

void heightAt(benchmark::State& state) {
    settle(state);
    float x = 0.0F;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(level.heightAt(x, 0.0F));
        x += 0.01F;
    }
}

void simulateTick(benchmark::State& state) {
    settle(state);
    marble.setVelocity(Vector3(0.0F, 1.0F, 0.0F));
    const Marble rolling = marble;
    for ([[maybe_unused]] auto _ : state) {
        marble = rolling; // otherwise it would reach a hole, where a tick is cheap
        stepWorld({});
        benchmark::DoNotOptimize(marble.position);
    }
}

void moveCamera(benchmark::State& state) {
    settle(state);
    for ([[maybe_unused]] auto _ : state) {
        updateCamera();
        benchmark::DoNotOptimize(viewFrame);
    }
}

void drawGround(benchmark::State& state) {
    settle(state);
    level.buildMesh();
    std::int32_t triangles = 0;
    for ([[maybe_unused]] auto _ : state) {
        triangles = level.drawGround(viewFrame, false, true);
    }
    state.counters["triangles"] = triangles;
}

void buildLevelMesh(benchmark::State& state) {
    settle(state);
    for ([[maybe_unused]] auto _ : state) {
        level.buildMesh();
    }
}

BENCHMARK(heightAt)->Arg(fewHoles)->Arg(manyHoles);
BENCHMARK(simulateTick)->Arg(fewHoles)->Arg(manyHoles);
BENCHMARK(moveCamera)->Arg(fewHoles)->Arg(manyHoles);
BENCHMARK(drawGround)->Arg(fewHoles)->Arg(manyHoles);
BENCHMARK(buildLevelMesh)->Arg(fewHoles)->Arg(manyHoles)->Unit(benchmark::kMillisecond);

} // namespace
