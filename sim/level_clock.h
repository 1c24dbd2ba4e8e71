// The clock of a level and the turning points on it.
//
// Game.clock counts down from a count-down of 1.5 s above 45 seconds. A level reached in time ends
// one second later; one whose time runs out ends the run four seconds later.
#pragma once

// The clock, the marble and the camera at the start of a level, its file loaded.
void resetLevel();
void placeAtStart();

// Advances the clocks by Game.frameTime seconds; first in every tick of a running level.
void advanceClocks();

// What the clock has come to, in the order in which it is answered.
struct ClockEvents {
    bool levelIsOver = false;     // the next level starts, or the run ends
    bool timeIsUp = false;        // the time has run out, for the first time in this level
    bool countDownIsOver = false; // the marble is free, for the first time in this level
};

// Looked at after each tick's frame.
ClockEvents checkClock();
