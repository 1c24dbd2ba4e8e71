// The camera: follows the marble from behind and above, with the lag that the player sets.
#pragma once

#include "sim/vector.h"

// The eye in world units; each level start puts it far behind the marble.
extern Vector3 cameraPosition;

// The view's angles in radians; never reset.
extern float cameraAngleX;
extern float cameraAngleY;
extern float cameraAngleZ;

// Moves the camera towards its goal, by a share of the gap that depends on Game.cameraLag and
// Game.frameTime, and writes viewFrame. Called once a tick, after updateSimulation.
void updateCamera();
