// Plays one level by the game's own code, at any tick, without window or sound.
//
// Works on the game's globals, so there is one run at a time. The current folder must be the
// game's (tools/level/game_folder.h).
#pragma once

#include "data/level_file.h"
#include "sim/marble.h"
#include "tools/level/keys.h"

// What a tick changes, small enough to be saved and restored: the driver looks ahead by playing on
// and restoring the state.
struct RunState {
    Marble rolling;
    float clock;       // seconds left; this and the next five as in Game
    float levelEndAt;  // seconds on the clock; levelNotFinished until the goal is reached
    float holdTime;    // seconds
    float turbo;       // seconds left
    float penaltyFade; // seconds
    bool penaltyPending;
    bool done;    // the goal was reached
    float result; // seconds the level took, once it is done
    int catches;  // resets of the marble since the start
};

// Loads the level and starts it as the game starts any level but a run's first: the marble at the
// start line, the clock before its count-down. Returns false when the game would refuse the file;
// the report then says why.
bool startRun(const char* levelFile, LevelFileReport& report);

// One tick of the game: clocks, simulation, penalty label, level clock. `dt` in seconds, above 0.
void tickRun(Keys keys, float dt);

// Returns whether the level is over: the goal was reached, or the run ended for lack of time.
bool runIsOver();

RunState runState();
void setRunState(const RunState& state);
