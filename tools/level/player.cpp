#include "tools/level/player.h"

#include <algorithm>
#include <iterator>

#include "sim/marble.h"
#include "state/game.h"

namespace {

constexpr PlayerSkill skills[] = {
    {.name = "up"},
    {.name = "average",
     .steers = true,
     .reactionSeconds = 0.22F,
     .decisionSeconds = 0.15F,
     .sightSeconds = 0.35F,
     .sidewaysTolerance = 0.9F,
     .brakeTolerance = 1.6F,
     .misjudgement = 0.45F,
     .turboSecondsToSpend = 2.0F},
    {.name = "good",
     .steers = true,
     .reactionSeconds = 0.12F,
     .decisionSeconds = 0.1F,
     .sightSeconds = 0.25F,
     .sidewaysTolerance = 0.4F,
     .brakeTolerance = 0.9F,
     .misjudgement = 0.2F,
     .turboSecondsToSpend = 3.5F},
};

constexpr auto topSpeed = static_cast<float>(normalPower * topSpeedPerPower);
constexpr auto turboSpeed = static_cast<float>(turboPower * topSpeedPerPower);
constexpr float upTolerance = 0.3F; // velocity that may be too much while Up is held

constexpr float sightStep = 40.0F;      // world units from point to point of the line ahead
constexpr float changeOfError = 0.2F;   // chance that a decision begins to make another error
constexpr float driftOfError = 0.35F;   // part of the way to it, for each decision
constexpr float minSight = 80.0F;       // world units
constexpr float straightLine = 700.0F;  // world units of line that turbo needs on the flat
constexpr float straightCosine = 0.97F; // of its direction with the aim and with the velocity
constexpr float fastEnough = 3.2F;      // velocity from which turbo is worth spending on the flat
constexpr float steepSlope = 0.3F;      // sine of its angle
constexpr float climbingSpeed = 1.6F;   // velocity below which a climb needs turbo
constexpr float stuckSpeed = 0.3F;      // velocity of a marble that does not get on
constexpr float patience = 0.8F;        // seconds of that before it rolls back
constexpr float runUp = 1.3F;           // seconds of rolling back

float uniform(std::mt19937& random) { // -1..1
    return static_cast<float>(random() >> 8) / 8388608.0F - 1.0F;
}

// Returns the direction to the point of the line some way ahead.
Vector3 directionAhead(const Guide& guide, float distance) {
    Vector3 p = marble.position;
    for (float done = 0.0F; done < distance; done += sightStep) {
        p += guide.directionAt(p.x, p.y) * sightStep;
    }
    Vector3 way = p - marble.position;
    way[2] = 0.0F;
    return way.unit();
}

float planarSpeed() {
    return Vector3(marble.velocity.x, marble.velocity.y, 0.0F).length();
}

bool climbs() {
    const Vector3& p = marble.position;
    return level.tangentYAt(p.x, p.y).z < -steepSlope;
}

} // namespace

const PlayerSkill* findSkill(const std::string& name) {
    const auto* const found = std::find_if(std::begin(skills), std::end(skills),
                                           [&](const auto& skill) { return name == skill.name; });
    return found == std::end(skills) ? nullptr : found;
}

Player::Player(const PlayerSkill& ofPlayer, const Guide& way, unsigned seed)
    : skill(ofPlayer), guide(way), random(seed) {}

Keys Player::decide() {
    if (uniform(random) > 1.0F - 2.0F * changeOfError) {
        errorNext = skill.misjudgement * 0.5F * (uniform(random) + uniform(random));
    }
    errorNow += (errorNext - errorNow) * driftOfError;

    const Vector3 way = directionAhead(guide, sightDistance());
    const Vector3 aim = Vector3(way.x - way.y * errorNow, way.y + way.x * errorNow, 0.0F).unit();
    Keys keys = wantsTurbo(aim) ? turboKey : noKey;
    const Vector3 gap = aim * (keys == turboKey ? turboSpeed : topSpeed) - marble.velocity;
    if (gap.x < -skill.sidewaysTolerance) { keys |= leftKey; }
    if (gap.x > skill.sidewaysTolerance) { keys |= rightKey; }
    if (gap.y > -upTolerance && aim.y > 0.0F) { keys |= upKey; }
    if (gap.y < -skill.brakeTolerance) { keys |= downKey; }
    return keys;
}

float Player::sightDistance() const {
    return minSight + planarSpeed() * static_cast<float>(unitsPerVelocity) * skill.sightSeconds;
}

bool Player::wantsTurbo(const Vector3& aim) const {
    if (Game.turbo <= 0.0F) { return false; }
    const float along = dot(aim, marble.velocity);
    if (climbs() && along < climbingSpeed) { return true; }
    const Vector3 far = directionAhead(guide, straightLine);
    const bool straight = dot(far, aim) > straightCosine &&
                          dot(far, marble.velocity) > straightCosine * marble.velocity.length();
    return straight && along > fastEnough && Game.turbo > fullTurbo - skill.turboSecondsToSpend;
}

// A marble that a climb has stopped needs a run-up.
bool Player::backsOff(float dt) {
    const bool free = Game.holdTime <= 0.0F && Game.clock <= levelTime;
    const bool slow = planarSpeed() < stuckSpeed;
    stuckSeconds = free && slow ? stuckSeconds + dt : 0.0F;
    if (stuckSeconds > patience) { backOffSeconds = runUp; }
    backOffSeconds -= dt;
    return backOffSeconds > 0.0F;
}

Keys Player::keysFor(float dt) {
    if (!skill.steers) { return upKey; }
    if (backsOff(dt)) { return downKey; }
    untilDecision -= dt;
    if (untilDecision <= 0.0F) {
        untilDecision = skill.decisionSeconds;
        decided = decide();
    }
    pending.push_back(decided);
    if (static_cast<float>(pending.size()) * dt > skill.reactionSeconds) {
        pressed = pending.front();
        pending.pop_front();
    }
    return pressed;
}
