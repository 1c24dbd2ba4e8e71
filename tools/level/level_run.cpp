#include "tools/level/level_run.h"

#include <cstdio>

#include "app/game.h"
#include "app/level_run.h"
#include "data/level.h"
#include "sim/penalty_label.h"
#include "sim/simulation.h"
#include "tools/level/machine.h"

namespace {

// The level is played as the second of two: the game counts down longer before a run's first.
constexpr int levelsInRun = 2;

int catches = 0;

void listLevel(const char* levelFile) {
    Game.levelCount = levelsInRun;
    Game.levelTimes.reset(new float[levelsInRun]{levelTime, levelTime});
    Game.levelFiles.reset(new std::unique_ptr<char[]>[levelsInRun]);
    for (std::size_t i = 0; i < levelsInRun; ++i) {
        Game.levelFiles[i].reset(new char[LEVEL_NAME_CAPACITY]);
        std::snprintf(Game.levelFiles[i].get(), LEVEL_NAME_CAPACITY, "%s", levelFile);
    }
    Game.levelNumber = levelsInRun - 1;
}

} // namespace

bool startRun(const char* levelFile) {
    Game.penaltyPending = 0;
    Game.penaltyFade = fullPenaltyFade;
    catches = 0;
    listLevel(levelFile);
    const std::size_t boxesBefore = machine.boxes.size();
    startNextLevel();
    return machine.boxes.size() == boxesBefore;
}

void tickRun(Keys keys, float dt) {
    machine.held = keys;
    Game.frameTime = dt;
    Game.clock -= dt;
    Game.holdTime -= dt;
    const float holdBefore = Game.holdTime;
    updateSimulation();
    if (Game.holdTime > holdBefore) ++catches;
    drawPenaltyLabel();
    checkLevelClock();
}

bool runIsOver() {
    return Game.levelDone != 0 || Game.clock < levelNotFinished;
}

RunState runState() {
    return {.rolling = marble,
            .clock = Game.clock,
            .levelEndAt = Game.levelEndAt,
            .holdTime = Game.holdTime,
            .turbo = Game.turbo,
            .penaltyFade = Game.penaltyFade,
            .penaltyPending = Game.penaltyPending != 0,
            .done = Game.levelDone != 0,
            .result = Game.levelTimes[levelsInRun - 1],
            .catches = catches};
}

void setRunState(const RunState& state) {
    marble = state.rolling;
    Game.clock = state.clock;
    Game.levelEndAt = state.levelEndAt;
    Game.holdTime = state.holdTime;
    Game.turbo = state.turbo;
    Game.penaltyFade = state.penaltyFade;
    Game.penaltyPending = state.penaltyPending ? 1 : 0;
    Game.levelDone = state.done ? 1 : 0;
    Game.levelTimes[levelsInRun - 1] = state.result;
    Game.levelNumber = levelsInRun;
    catches = state.catches;
}
