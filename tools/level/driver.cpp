#include "tools/level/driver.h"

#include <algorithm>

#include "state/game.h"
#include "tools/level/level_run.h"

namespace {

constexpr float decisionSeconds = 0.1F; // from one decision to the next

// A plan: hold the first keys, then the second, then follow the guide for the rest.
constexpr float lookaheadTick = 1.0F / 30.0F; // seconds
constexpr int firstTicks = 5;
constexpr int secondTicks = 9;
constexpr int guidedTicks = 18;

constexpr Keys directions[] = {upKey,   upKey | leftKey,   upKey | rightKey,   leftKey, rightKey,
                               downKey, downKey | leftKey, downKey | rightKey, noKey};

// Costs and gains at the end of a lookahead, in seconds.
constexpr float catchCost = 1000.0F;
constexpr float fullSpeedGain = 0.9F; // of rolling along the line at top speed, against standing
constexpr auto topSpeed = static_cast<float>(normalPower * topSpeedPerPower);
constexpr auto turboSpeed = static_cast<float>(turboPower * topSpeedPerPower);
constexpr float turboCost = 0.25F; // for each second of turbo spent

// The turbo that it keeps for a long climb ahead.
constexpr float longClimb = 120.0F;  // world units
constexpr float turboToClimb = 2.0F; // seconds
constexpr float atItsFoot = 0.4F;    // slope

// The velocity by which the marble may be too slow, or too fast, before a key is held.
constexpr float sidewaysTolerance = 0.5F;
constexpr float slowTolerance = 0.2F;
constexpr float fastTolerance = 1.0F;

Keys keysAlongGuide(const Guide& guide, Keys turbo) {
    const Vector3 p = marble.position;
    const float speed = turbo == noKey ? topSpeed : turboSpeed;
    const Vector3 gap = guide.directionAt(p.x, p.y) * speed - marble.velocity;
    Keys keys = noKey;
    if (gap.x < -sidewaysTolerance) { keys |= leftKey; }
    if (gap.x > sidewaysTolerance) { keys |= rightKey; }
    if (gap.y > slowTolerance) { keys |= upKey; }
    if (gap.y < -fastTolerance) { keys |= downKey; }
    return keys;
}

struct Lookahead {
    const Guide& guide;
    RunState now;

    // Returns whether the plan has reached the goal or a hole.
    bool isDecided() const { return runState().done || runState().catches > now.catches; }

    // Holds the keys for some ticks, or until the plan is decided.
    void hold(Keys keys, int ticks) const {
        for (int i = 0; i < ticks && !isDecided(); ++i) {
            tickRun(keys, lookaheadTick);
        }
    }

    void followGuide(Keys turbo) const {
        for (int i = 0; i < guidedTicks && !isDecided(); ++i) {
            tickRun(keysAlongGuide(guide, turbo) | turbo, lookaheadTick);
        }
    }

    // Returns the seconds from now to the goal, estimated at the end of a plan.
    float cost() const {
        const RunState then = runState();
        const float elapsed = now.clock - then.clock;
        if (then.catches > now.catches) { return catchCost - elapsed; }
        const float turbo = (now.turbo - then.turbo) * turboCost;
        // As good as rolling towards the line with turbo, or plans that stop before it would win.
        if (then.done) { return elapsed + turbo - fullSpeedGain * turboSpeed / topSpeed; }
        const Vector3& p = marble.position;
        const float alongLine = dot(guide.directionAt(p.x, p.y), marble.velocity) / topSpeed;
        return elapsed + guide.secondsAt(p.x, p.y) + turbo - fullSpeedGain * alongLine;
    }
};

// Returns the least cost of the plans that begin with these keys.
float costOf(const Lookahead& lookahead, Keys first, Keys turbo) {
    lookahead.hold(first | turbo, firstTicks);
    const RunState between = runState();
    float best = 1.0e9F;
    for (const Keys second : directions) {
        lookahead.hold(second | turbo, secondTicks);
        lookahead.followGuide(turbo);
        best = std::min(best, lookahead.cost());
        setRunState(between);
    }
    return best;
}

// Returns whether turbo may be spent here.
bool mayUseTurbo(const Guide& guide) {
    const Vector3& p = marble.position;
    if (Game.turbo > turboToClimb || guide.climbAt(p.x, p.y) < longClimb) {
        return Game.turbo > 0.0F;
    }
    return Game.turbo > 0.0F && level.tangentYAt(p.x, p.y).z < -atItsFoot;
}

} // namespace

Keys Driver::keysFor(float dt) {
    untilDecision -= dt;
    const RunState now = runState();
    if (untilDecision > 0.0F || now.clock > levelTime || now.holdTime > dt) { return held; }
    untilDecision += decisionSeconds;
    if (untilDecision <= 0.0F) { untilDecision = decisionSeconds; }
    float best = 1.0e9F;
    for (const Keys turbo : {noKey, turboKey}) {
        if (turbo != noKey && !mayUseTurbo(guide)) { continue; }
        for (const Keys first : directions) {
            const float cost = costOf({guide, now}, first, turbo);
            setRunState(now);
            if (cost >= best) { continue; }
            best = cost;
            held = first | turbo;
        }
    }
    return held;
}
