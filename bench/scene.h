// What the benchmarks look at: the player's view of a course, and a view over many rows of ground.
#pragma once

#include <cstdint>

// The rows of ground ahead in the longest view.
inline constexpr std::int64_t allRows = 390;

// Puts the marble in the middle of the course, lets the camera settle behind it and starts a tick
// of 1/60 s with the clock half-way.
void lookFromMarble();

// Looks along the course with that many rows of vertices ahead, at most allRows. With far sight all
// of them are in view.
void lookOverRows(std::int64_t rows);
