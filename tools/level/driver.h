// The automatic driver: plays the running level through held keys, as a player does.
//
// It knows the ground and the holes, and a line to the goal (tools/level/guide.h). Ten times a
// second it compares what the keys would do over the next second: it lets the game run on and
// restores its state.
#pragma once

#include "tools/level/guide.h"
#include "tools/level/keys.h"

struct Driver {
    Guide guide;
    float untilDecision = 0.0F; // seconds for which the keys stay as they are
    Keys held = upKey;

    explicit Driver(const Level& course) : guide(course) {}

    // Returns the keys to hold in the coming tick of `dt` seconds of the run.
    Keys keysFor(float dt);
};
