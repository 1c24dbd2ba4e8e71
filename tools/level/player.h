// Model players: they hold keys as people do, late and not exactly, to measure how hard a course
// is.
//
// A player sees the line to the goal (tools/level/guide.h) some way ahead and steers towards it. It
// decides several times a second, presses the keys some time later, ignores small deviations, and
// misjudges the line by an error that drifts. The errors come from a seed: the same seed plays the
// same run on every machine.
#pragma once

#include <deque>
#include <random>
#include <string>

#include "tools/level/guide.h"
#include "tools/level/keys.h"

struct PlayerSkill {
    const char* name = "";
    bool steers = false;              // otherwise it holds Up and nothing else
    float reactionSeconds = 0.0F;     // from seeing to pressing
    float decisionSeconds = 0.0F;     // from one decision to the next
    float sightSeconds = 0.0F;        // from the marble to the point of the line that it aims at
    float sidewaysTolerance = 0.0F;   // velocity missing to a side before it presses a key
    float brakeTolerance = 0.0F;      // velocity that may be too much along the course
    float misjudgement = 0.0F;        // largest error of direction, sideways for each unit ahead
    float turboSecondsToSpend = 0.0F; // on straight stretches; the rest is for climbs
};

// Returns the skill of that name, "up", "average" or "good", or nullptr.
const PlayerSkill* findSkill(const std::string& name);

struct Player {
    const PlayerSkill& skill;
    const Guide& guide;
    std::mt19937 random;
    Keys decided = upKey;
    Keys pressed = upKey;
    std::deque<Keys> pending;   // decided and not yet pressed, one entry for each tick
    float untilDecision = 0.0F; // seconds
    float errorNow = 0.0F;      // of direction; drifts to errorNext
    float errorNext = 0.0F;
    float stuckSeconds = 0.0F;   // for which the marble has not moved
    float backOffSeconds = 0.0F; // for which it still rolls back before a run-up

    Player(const PlayerSkill& skill, const Guide& guide, unsigned seed);

    // Returns the keys to hold in the coming tick of `dt` seconds of the run.
    Keys keysFor(float dt);

private:
    Keys decide();
    float sightDistance() const;
    bool wantsTurbo(const Vector3& aim) const;
    bool backsOff(float dt);
};
