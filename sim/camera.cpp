#include "sim/camera.h"

#include <cmath>

#include "sim/level.h"
#include "sim/marble.h"
#include "sim/view_frame.h"
#include "state/game.h"

namespace {

constexpr Vector3 goalOffset(0.0F, -400.0F, -350.0F); // world units, from the marble
constexpr float clearance = 270.0F; // world units that the goal stays above the ground
constexpr float maxStep = 0.1F;     // seconds; longer frames count as this long

// Where the ground is sampled, as x and y offsets from the goal in world units: below it, ahead,
// right and left.
constexpr float probes[][2] = {{0.0F, 0.0F}, {0.0F, 150.0F}, {75.0F, 0.0F}, {-75.0F, 0.0F}};

Vector3 cameraGoal() {
    Vector3 goal = marble.getPosition() + goalOffset;
    for (const auto& probe : probes) {
        const float highest = level.heightAt(goal.x + probe[0], goal.y + probe[1]) - clearance;
        if (highest < goal.z) { goal.z = highest; }
    }
    return goal;
}

void approach(float& angle, float goal, float share) {
    angle += (goal - angle) * share;
}

} // namespace

void updateCamera() {
    const Vector3 goal = cameraGoal();

    const Vector3 d = cameraPosition - marble.getPosition();
    const float pitchGoal = -std::atan(d.y / d.z);
    const float sideGoal = -std::atan(d.x / d.z);

    const float dt = Game.frameTime <= maxStep ? Game.frameTime : maxStep;
    const float share = (10.0F - Game.cameraLag) * dt;

    cameraPosition += (goal - cameraPosition) * share;
    approach(cameraAngleX, pitchGoal, share);
    approach(cameraAngleY, sideGoal, share);
    approach(cameraAngleZ, sideGoal, share);
    viewFrame.set(cameraPosition, cameraAngleX, cameraAngleY, cameraAngleZ);
}
