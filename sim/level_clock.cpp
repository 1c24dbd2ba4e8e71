#include "sim/level_clock.h"

#include "sim/camera.h"
#include "sim/course.h"
#include "sim/marble.h"
#include "sim/simulation.h"
#include "state/game.h"

namespace {

constexpr float clockAtStart = levelTime + 1.5F;           // seconds, with the count-down
constexpr Vector3 cameraAtStart(0.0F, -3000.0F, -6000.0F); // world units, from the marble

bool levelIsOver() {
    if (Game.clock >= Game.levelEndAt) { return false; }
    if (Game.levelEndAt == levelNotFinished) { Game.levelNumber = Game.levelCount; }
    return true;
}

void rearmSignals() {
    if (Game.clock < levelTime) { return; }
    Game.goPlayed = 0;
    Game.timeUpPlayed = 0;
}

bool timeIsUp() {
    if (Game.clock >= 0.0F || Game.levelEndAt != levelNotFinished || Game.timeUpPlayed) {
        return false;
    }
    Game.timeUpPlayed = 1;
    return true;
}

bool countDownIsOver() {
    if (Game.clock > levelTime || Game.goPlayed) { return false; }
    Game.goPlayed = 1;
    return true;
}

} // namespace

void resetLevel() {
    Game.levelDone = 0;
    Game.clock = clockAtStart;
    Game.levelEndAt = levelNotFinished;
    Game.holdTime = 0.0F;
    Game.stopped = 0;
    Game.paused = 0;
    Game.newBestEntry = -1;
}

void placeAtStart() {
    placeMarble(0.0F, startLine);
    cameraPosition = marble.getPosition() + cameraAtStart;
}

void advanceClocks() {
    Game.clock -= Game.frameTime;
    Game.holdTime -= Game.frameTime;
}

ClockEvents checkClock() {
    ClockEvents events;
    events.levelIsOver = levelIsOver();
    rearmSignals();
    events.timeIsUp = timeIsUp();
    events.countDownIsOver = countDownIsOver();
    return events;
}
