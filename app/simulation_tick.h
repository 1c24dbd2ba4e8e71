// A tick of the world for the player: samples the keys and plays the sound of the goal.
#pragma once

// Samples the steering keys and advances the world (sim/simulation.h) by Game.frameTime seconds.
// Does nothing once the level is done.
void updateSimulation();
