#include "sim/simulation.h"

#include "app/effects.h"
#include "app/game.h"
#include "data/level.h"
#include "sim/marble.h"

namespace {

constexpr float normalPower = 40.0F;
constexpr float turboPower = 65.0F;

constexpr float holdAfterReset = 1.0F;         // seconds
constexpr float stepBackInHoleWidths = 4.0F;   // from where a hole caught the marble
constexpr float stepBackPerTry = 30.0F;        // world units
constexpr float placeAfterBackExit = -5700.0F; // y, world units

bool isHeld(int key) {
    return (GetAsyncKeyState(key) & 0x8000) != 0;
}

// The marble moves, and turbo is spent, between the start signal and the end of the time.
bool marbleIsFree() {
    return Game.holdTime <= 0.0F && Game.clock >= 0.0F && Game.clock <= levelTime;
}

void steerByKeys() {
    steeringForce.set(0.0F, 0.0F, 0.0F);
    const Vector3 p = marble.getPosition();
    if (isHeld(VK_LEFT)) steeringForce -= level.tangentXAt(p.x, p.y);
    if (isHeld(VK_RIGHT)) steeringForce += level.tangentXAt(p.x, p.y);
    if (isHeld(VK_UP)) steeringForce += level.tangentYAt(p.x, p.y);
    if (isHeld(VK_DOWN)) steeringForce -= level.tangentYAt(p.x, p.y);
}

void applyTurbo() {
    marble.setPower(normalPower);
    if (!isHeld(VK_SHIFT)) return;
    if (Game.turbo > 0.0F) {
        marble.setPower(turboPower);
        if (marbleIsFree()) Game.turbo -= Game.frameTime;
    } else {
        Game.turbo = 0.0F;
    }
}

void penalise() {
    Game.holdTime = holdAfterReset;
    Game.penaltyPending = 1;
    if (Game.clock < 0.0F) Game.clock = 0.0F;
}

// Looks behind the hole, in the middle of the course, for a spot clear of all holes. Where there
// is none down to the back of the course, the marble stays caught.
void putBackFromHole(float holeWidth) {
    float y = marble.getPosition().y - stepBackInHoleWidths * holeWidth;
    while (y >= courseBack && level.holeAt(0.0F, y) != 0.0F) {
        y -= stepBackPerTry;
    }
    if (y >= courseBack) placeMarble(0.0F, y);
}

void checkHoles() {
    const Vector3 p = marble.getPosition();
    const float holeWidth = level.holeAt(p.x, p.y);
    if (holeWidth <= 0.0F) return;
    putBackFromHole(holeWidth);
    penalise();
}

void checkSides() {
    const Vector3 p = marble.getPosition();
    if (p.x >= courseLeft && p.x <= courseRight) return;
    placeMarble(0.0F, p.y);
    penalise();
}

void checkBack() {
    const Vector3 p = marble.getPosition();
    if (p.y >= courseBack) return;
    placeMarble(p.x, placeAfterBackExit);
    penalise();
}

void checkGoal() {
    if (!(marble.getPosition().y > goalLine) || Game.levelDone) return;
    playEffect(goalSound);
    Game.timeOfLevel() = levelTime - Game.clock;
    Game.levelDone = 1;
    Game.levelEndAt = Game.clock - 1.0F;
}

} // namespace

void updateSimulation() {
    if (Game.levelDone) return;
    steerByKeys();
    applyTurbo();
    steeringForce = steeringForce * marble.getPower();
    if (marbleIsFree()) marble.step(level, steeringForce, Game.frameTime);
    checkHoles();
    checkSides();
    checkBack();
    checkGoal();
}

void placeMarble(float x, float y) {
    marble.setPosition(Vector3(x, y, level.heightAt(x, y)));
    marble.setVelocity(Vector3(0.0F, 0.0F, 0.0F));
}
