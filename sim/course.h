// The course in world units: its edges, its start and its goal. It is the same in every level.
#pragma once

// x of the left and right edge; a marble exactly on an edge is still on the course.
inline constexpr float courseLeft = -750.0F;
inline constexpr float courseRight = 720.0F;

inline constexpr float courseBack = -6000.0F; // y of the edge behind the start
inline constexpr float startLine = -5800.0F;  // y at which each level places the marble
inline constexpr float goalLine = 5800.0F;    // y; the goal is reached beyond it
