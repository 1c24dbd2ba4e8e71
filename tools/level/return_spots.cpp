#include "tools/level/return_spots.h"

#include <algorithm>
#include <cmath>

#include "sim/course.h"
#include "sim/level.h"
#include "sim/simulation.h"
#include "state/game.h"
#include "tools/level/level_run.h"

namespace {

constexpr int mostPairs = 2'000'000; // of a tried well and a hole near it or not: some seconds
constexpr float dropDistance = 1.4F; // hole widths: just within the catch radius

// Lets the game find a marble in a hole, while the marble is held and the clock stands.
bool dropInto(float x, float y, Vector3& spot) {
    Game.frameTime = 0.0F;
    Game.holdTime = 1.0F;
    placeMarble(x, y);
    stepWorld({});
    spot = marble.getPosition();
    return level.holeAt(spot.x, spot.y) <= 0.0F;
}

} // namespace

int wellsTried() {
    return std::min(level.holeCount, mostPairs / std::max(level.holeCount, 1));
}

std::vector<Return> findReturns() {
    const RunState before = runState();
    std::vector<Return> returns;
    for (int i = 0; i < wellsTried(); ++i) {
        const Hole& hole = level.allHoles()[static_cast<std::size_t>(i)];
        if (!(hole.depth > 0.0F) || !(hole.width > 0.0F)) { continue; }
        if (std::abs(hole.y) > -courseBack) {
            continue; // no marble gets there
        }
        for (const float side : {-dropDistance, dropDistance}) {
            Return back = {i, false, {}};
            const float y = std::clamp(hole.y + side * hole.width, courseBack, -courseBack);
            back.found = dropInto(hole.x, y, back.spot);
            returns.push_back(back);
        }
    }
    setRunState(before);
    return returns;
}

std::vector<Vector3> differentSpots(const std::vector<Return>& returns) {
    std::vector<Vector3> spots;
    for (const Return& back : returns) {
        const bool known = std::any_of(spots.begin(), spots.end(), [&back](const Vector3& spot) {
            return (spot - back.spot).length() < 1.0F;
        });
        if (back.found && !known) { spots.push_back(back.spot); }
    }
    std::sort(spots.begin(), spots.end(),
              [](const Vector3& a, const Vector3& b) { return a.y < b.y; });
    return spots;
}
