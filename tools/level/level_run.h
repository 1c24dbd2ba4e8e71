// One level played by the game's own code at a fixed tick, without window or sound.
//
// Works on the game's globals, so there is one run at a time. The current folder must be the
// game's (tools/level/game_folder.h).
#pragma once

#include "data/level_file.h"
#include "sim/marble.h"
#include "tools/level/keys.h"

// What a tick changes, small enough to be kept and brought back: drivers look ahead by playing on
// and taking it back.
struct RunState {
    Marble rolling;
    float clock;       // seconds left, as in Game; the same for the next four
    float levelEndAt;  // tells a level that is done from one that is not
    float holdTime;    // seconds
    float turbo;       // seconds left
    float penaltyFade; // seconds
    bool penaltyPending;
    bool done;    // the goal was reached
    float result; // seconds the level took, once it is done
    int catches;  // times the marble was put back since the start
};

// Loads the level and starts it as the game starts any level but a run's first: the marble at the
// start line, 46.5 s on the clock. Returns false when the game would refuse the file; the report
// then says why.
bool startRun(const char* levelFile, LevelFileReport& report);

// One tick of the game: clocks, simulation, penalty label, level clock. `dt` in seconds, above 0.
void tickRun(Keys keys, float dt);

// Whether no tick will change anything any more: the goal was reached, or the time is up.
bool runIsOver();

RunState runState();
void setRunState(const RunState& state);
