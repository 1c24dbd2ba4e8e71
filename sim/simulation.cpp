#include "sim/simulation.h"

#include "sim/course.h"
#include "sim/level.h"
#include "sim/marble.h"
#include "state/game.h"

namespace {

constexpr float holdAfterReset = 1.0F;         // seconds
constexpr float stepBackInHoleWidths = 4.0F;   // from where a hole caught the marble
constexpr float stepBackPerTry = 30.0F;        // world units
constexpr float placeAfterBackExit = -5700.0F; // y, world units

// Returns whether the marble moves and turbo is spent: it is not held, the count-down is over and
// time is left.
bool marbleIsFree() {
    return Game.holdTime <= 0.0F && Game.clock >= 0.0F && Game.clock <= levelTime;
}

void steer(const Controls& controls) {
    steeringForce.set(0.0F, 0.0F, 0.0F);
    const Vector3 p = marble.getPosition();
    if (controls.left) { steeringForce -= level.tangentXAt(p.x, p.y); }
    if (controls.right) { steeringForce += level.tangentXAt(p.x, p.y); }
    if (controls.up) { steeringForce += level.tangentYAt(p.x, p.y); }
    if (controls.down) { steeringForce -= level.tangentYAt(p.x, p.y); }
}

void applyTurbo(bool wanted) {
    marble.setPower(normalPower);
    if (!wanted) { return; }
    if (Game.turbo > 0.0F) {
        marble.setPower(turboPower);
        if (marbleIsFree()) { Game.turbo -= Game.frameTime; }
    } else {
        Game.turbo = 0.0F;
    }
}

void penalise(StepEvents& events) {
    Game.holdTime = holdAfterReset;
    Game.penaltyPending = 1;
    if (Game.clock < 0.0F) { Game.clock = 0.0F; }
    events.resetMarble = true;
}

// Moves the marble back towards the start, to the nearest spot in the middle of the course that is
// clear of all holes. If there is none, the marble stays caught.
void putBackFromHole(float holeWidth) {
    float y = marble.getPosition().y - stepBackInHoleWidths * holeWidth;
    while (y >= courseBack && level.holeAt(0.0F, y) != 0.0F) {
        y -= stepBackPerTry;
    }
    if (y >= courseBack) { placeMarble(0.0F, y); }
}

void checkHoles(StepEvents& events) {
    const Vector3 p = marble.getPosition();
    const float holeWidth = level.holeAt(p.x, p.y);
    if (holeWidth <= 0.0F) { return; }
    putBackFromHole(holeWidth);
    penalise(events);
}

void checkSides(StepEvents& events) {
    const Vector3 p = marble.getPosition();
    if (p.x >= courseLeft && p.x <= courseRight) { return; }
    placeMarble(0.0F, p.y);
    penalise(events);
}

void checkBack(StepEvents& events) {
    const Vector3 p = marble.getPosition();
    if (p.y >= courseBack) { return; }
    placeMarble(p.x, placeAfterBackExit);
    penalise(events);
}

void checkGoal(StepEvents& events) {
    if (!(marble.getPosition().y > goalLine) || Game.levelDone) { return; }
    Game.timeOfLevel() = levelTime - Game.clock;
    Game.levelDone = 1;
    Game.levelEndAt = Game.clock - 1.0F;
    events.reachedGoal = true;
}

} // namespace

StepEvents stepWorld(const Controls& controls) {
    StepEvents events;
    steer(controls);
    applyTurbo(controls.turbo);
    steeringForce = steeringForce * marble.getPower();
    if (marbleIsFree()) { marble.step(level, steeringForce, Game.frameTime); }
    checkHoles(events);
    checkSides(events);
    checkBack(events);
    checkGoal(events);
    return events;
}

void placeMarble(float x, float y) {
    marble.setPosition(Vector3(x, y, level.heightAt(x, y)));
    marble.setVelocity(Vector3(0.0F, 0.0F, 0.0F));
}
