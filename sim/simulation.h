// The world's share of a tick: keys, turbo, one step of the marble, and what becomes of it.
//
// Works on the global marble and level and on Game; never fails.
#pragma once

#include "sim/vector.h"

// The force of the arrow keys along the ground, made afresh at every updateSimulation.
extern Vector3 steeringForce;

// The course in world units. Both sides themselves still belong to it.
inline constexpr float courseLeft = -750.0F;
inline constexpr float courseRight = 720.0F;
inline constexpr float courseBack = -6000.0F;
inline constexpr float startLine = -5800.0F;
inline constexpr float goalLine = 5800.0F; // crossed when y is above it

// Advances the level by Game.frameTime seconds; called once a tick, after the clocks and before
// the camera. Does nothing once the level is done.
void updateSimulation();

// Puts the marble on the ground at a world x and y, at rest.
void placeMarble(float x, float y);
