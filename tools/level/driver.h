// The automatic driver: plays the running level through held keys, as a player does.
//
// It sees the ground and the holes, has a line in mind (tools/level/guide.h), and ten times a
// second compares what the keys would do over the next second, by letting the game play on and
// taking it back. It neither looks at the clock nor knows the future beyond that second.
#pragma once

#include "tools/level/guide.h"
#include "tools/level/keys.h"

struct Driver {
    Guide guide;
    float untilDecision = 0.0F; // seconds for which the keys stay as they are
    Keys held = upKey;

    explicit Driver(const Level& course) : guide(course) {}

    // The keys to hold in the coming tick of `dt` seconds of the run.
    Keys keysFor(float dt);
};
