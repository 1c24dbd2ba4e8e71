// The world's part of a tick: steering, turbo, one step of the marble, then holes, edges and goal.
//
// Works on the global marble and level and on Game; never fails.
#pragma once

#include "sim/vector.h"
#include "state/controls.h"

// The force of the arrow keys along the ground, rebuilt at every stepWorld.
extern Vector3 steeringForce;

// What happened in a step, for the caller to handle.
struct StepEvents {
    bool resetMarble = false; // a hole caught the marble, or it left the course
    bool reachedGoal = false; // the marble crossed the goal line: the level is done
};

// Advances the level by Game.frameTime seconds under these controls. Called once a tick while the
// level is not done, after the clocks and before the camera.
StepEvents stepWorld(const Controls& controls);

// Puts the marble on the ground at a world x and y, at rest.
void placeMarble(float x, float y);
