// The course in world units: its edges, its start and its goal. It is the same in every level.
#pragma once

// The sides; a marble exactly on one is still on the course.
inline constexpr float courseLeft = -750.0F;
inline constexpr float courseRight = 720.0F;

inline constexpr float courseBack = -6000.0F;
inline constexpr float startLine = -5800.0F; // y at which each level places the marble
inline constexpr float goalLine = 5800.0F;   // y; crossed when the marble's is above it
