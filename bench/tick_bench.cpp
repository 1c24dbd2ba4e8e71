// What the parts of a tick and the start of a level cost without OpenGL, each beside a
// reference.
//
// The arguments are the number of holes in the level, or the number of rows in view.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "bench/scene.h"
#include "render/ground_walk.h"
#include "sim/level.h"
#include "sim/view_frame.h"

namespace {

constexpr int manyHoles = 200;

// Makes wells and mounds in two rows, away from the middle of the course.
void makeHoles(std::int64_t count) {
    level.makeHoles(static_cast<std::int32_t>(count));
    float side = -1.0F;
    float along = 0.0F;
    for (Hole& hole : level.allHoles()) {
        hole = {side * 600.0F, -5900.0F + 11800.0F * along, 60.0F, side * 120.0F};
        side = -side;
        along += 1.0F / static_cast<float>(count);
    }
}

void heightAt(benchmark::State& state) {
    makeHoles(state.range(0));
    float x = 0.0F;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(level.heightAt(x, 0.0F));
        x += 0.01F;
    }
}

// A square root and a division for each hole, one hole at a time, as heightAt takes them.
void rootAndDivision(benchmark::State& state) {
    std::vector<double> squares(static_cast<std::size_t>(state.range(0)), 400.0);
    benchmark::DoNotOptimize(squares.data());
    for ([[maybe_unused]] auto _ : state) {
        double sum = 0.0;
        for (const double square : squares) {
            sum += 1.0 / std::sqrt(square);
        }
        benchmark::DoNotOptimize(sum);
        benchmark::ClobberMemory();
    }
}

void buildMesh(benchmark::State& state) {
    makeHoles(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        level.buildMesh();
    }
}

void lookOver(std::int64_t rows) {
    makeHoles(10);
    level.buildMesh();
    lookOverRows(rows);
}

void walkRows(benchmark::State& state) {
    lookOver(state.range(0));
    GroundCells cells;
    for ([[maybe_unused]] auto _ : state) {
        walkGround(level, viewFrame, true, cells);
        benchmark::ClobberMemory();
    }
    state.counters["cells"] = cells.count;
}

// The corners of the cells that walkGround finds, each once.
std::vector<std::uint16_t> cornersInView() {
    GroundCells cells;
    walkGround(level, viewFrame, true, cells);
    std::vector<bool> seen(groundVertices);
    std::vector<std::uint16_t> corners;
    for (std::int32_t i = 0; i < cells.count; ++i) {
        for (const std::size_t step :
             {groundIndex(0, 0), groundIndex(1, 0), groundIndex(1, 1), groundIndex(0, 1)}) {
            const std::size_t corner = cells.indices[i] + step;
            if (!seen[corner]) { corners.push_back(static_cast<std::uint16_t>(corner)); }
            seen[corner] = true;
        }
    }
    return corners;
}

// The projection of the vertices that the walk projects, and nothing else.
void projectRows(benchmark::State& state) {
    lookOver(state.range(0));
    const std::vector<std::uint16_t> corners = cornersInView();
    const Vector3 eye = viewFrame.getPosition();
    const Matrix3 rotation = viewFrame.getRotation();
    for ([[maybe_unused]] auto _ : state) {
        for (const std::uint16_t corner : corners) {
            level.groundScreen[corner] = projectGround(rotation, level.groundPoints[corner] - eye);
        }
        benchmark::ClobberMemory();
    }
    state.counters["vertices"] = static_cast<double>(corners.size());
}

void overHoles(benchmark::internal::Benchmark* measured) {
    measured->ArgName("holes")->Arg(10)->Arg(50)->Arg(100)->Arg(manyHoles);
}

BENCHMARK(heightAt)->Apply(overHoles);
BENCHMARK(rootAndDivision)->Apply(overHoles);
BENCHMARK(buildMesh)->Apply(overHoles);
BENCHMARK(walkRows)->Apply(overRows);
BENCHMARK(projectRows)->Apply(overRows);

} // namespace
