// The player's share of a tick of the world: the keys go in, the sound of the goal comes out.
#pragma once

// Samples the steering keys and advances the world (sim/simulation.h) by Game.frameTime seconds.
// Does nothing once the level is done.
void updateSimulation();
