// The clock of a level and its events.
//
// Game.clock counts down, in seconds. It starts above levelTime, which gives a count-down until the
// marble may roll. A level ends one second after its goal is reached; when the time runs out, the
// run ends four seconds later.
#pragma once

// Resets the clock and the state of the level in Game.
void resetLevel();

// Places the marble and the camera at the start of the loaded level.
void placeAtStart();

// Advances the clocks by Game.frameTime seconds; first in every tick of a running level.
void advanceClocks();

// What happened on the clock, in the order in which the caller handles it.
struct ClockEvents {
    bool levelIsOver = false;     // the next level starts, or the run ends
    bool timeIsUp = false;        // the time has run out, for the first time in this level
    bool countDownIsOver = false; // the marble is free, for the first time in this level
};

// Returns the events of this tick; called after its frame. When the time has run out it sets
// Game.levelNumber to the last level, so that the next level start ends the run.
ClockEvents checkClock();
