#include "tools/level/driver.h"

#include <algorithm>

#include "state/game.h"
#include "tools/level/level_run.h"

namespace {

constexpr float decisionSeconds = 0.1F;

// A plan: hold the first keys, then the second, then follow the guide for the rest.
constexpr float lookTick = 1.0F / 30.0F; // seconds; the look ahead is coarser than the game
constexpr int firstTicks = 5;
constexpr int secondTicks = 9;
constexpr int guidedTicks = 18;

constexpr Keys directions[] = {upKey,   upKey | leftKey,   upKey | rightKey,   leftKey, rightKey,
                               downKey, downKey | leftKey, downKey | rightKey, noKey};

// What the end of a look ahead is worth, in seconds.
constexpr float catchCost = 1000.0F;
constexpr float fullSpeedWorth = 0.9F; // rolling at top speed along the line, against standing
constexpr auto topSpeed = static_cast<float>(normalPower * topSpeedPerPower);
constexpr auto turboSpeed = static_cast<float>(turboPower * topSpeedPerPower);
constexpr float turboPrice =
    0.25F; // per second of turbo, which is better spent where it gains more

Keys keysAlongGuide(const Guide& guide, Keys turbo) {
    const Vector3 p = marble.position;
    const float speed = turbo == noKey ? topSpeed : turboSpeed;
    const Vector3 gap = guide.directionAt(p.x, p.y) * speed - marble.velocity;
    Keys keys = noKey;
    if (gap.x < -0.5F) { keys |= leftKey; }
    if (gap.x > 0.5F) { keys |= rightKey; }
    if (gap.y > 0.2F) { keys |= upKey; }
    if (gap.y < -1.0F) { keys |= downKey; }
    return keys;
}

struct Look {
    const Guide& guide;
    RunState now;

    bool isDecided() const { return runState().done || runState().catches > now.catches; }

    // Holds the keys for some ticks, or for less where the matter is decided before.
    void hold(Keys keys, int ticks) const {
        for (int i = 0; i < ticks && !isDecided(); ++i) {
            tickRun(keys, lookTick);
        }
    }

    void followGuide(Keys turbo) const {
        for (int i = 0; i < guidedTicks && !isDecided(); ++i) {
            tickRun(keysAlongGuide(guide, turbo) | turbo, lookTick);
        }
    }

    // Seconds from now to the goal, estimated in the state that a plan has led to.
    float cost() const {
        const RunState then = runState();
        const float elapsed = now.clock - then.clock;
        if (then.catches > now.catches) { return catchCost - elapsed; }
        const float turbo = (now.turbo - then.turbo) * turboPrice;
        // Being over the line is worth no less than racing towards it.
        if (then.done) { return elapsed + turbo - fullSpeedWorth * turboSpeed / topSpeed; }
        const Vector3& p = marble.position;
        const float alongLine = dot(guide.directionAt(p.x, p.y), marble.velocity) / topSpeed;
        return elapsed + guide.secondsAt(p.x, p.y) + turbo - fullSpeedWorth * alongLine;
    }
};

// The least cost of the plans that begin with these keys.
float costOf(const Look& look, Keys first, Keys turbo) {
    look.hold(first | turbo, firstTicks);
    const RunState between = runState();
    float best = 1.0e9F;
    for (const Keys second : directions) {
        look.hold(second | turbo, secondTicks);
        look.followGuide(turbo);
        best = std::min(best, look.cost());
        setRunState(between);
    }
    return best;
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
        if (turbo != noKey && now.turbo <= 0.0F) { continue; }
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
