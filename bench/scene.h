// What the benchmarks look at: the player's view of a course, and a view over many rows of ground.
#pragma once

#include <cstdint>

#include <benchmark/benchmark.h>

// Puts the marble in the middle of the course, lets the camera settle behind it and starts a tick
// of 1/60 s with the clock half-way.
void lookFromMarble();

// Looks along the course with that many rows of vertices ahead. With far sight all of them are in
// view.
void lookOverRows(std::int64_t rows);

// Gives a benchmark the numbers of rows to look over.
void overRows(benchmark::internal::Benchmark* measured);
