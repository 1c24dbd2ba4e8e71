#include "tools/level/return_spots.h"

#include <algorithm>
#include <cmath>

#include "sim/course.h"
#include "sim/level.h"
#include "sim/simulation.h"
#include "state/game.h"
#include "tools/level/level_run.h"

namespace {

constexpr int maxPairs = 2'000'000;  // of a tested well and any hole; these take some seconds
constexpr float dropDistance = 1.4F; // hole widths: just within the catch radius

// Puts a held marble into a hole and lets the game reset it in a step of 0 s. Returns whether the
// marble is free afterwards.
bool dropMarble(float x, float y, Vector3& spot) {
    Game.frameTime = 0.0F;
    Game.holdTime = 1.0F;
    placeMarble(x, y);
    stepWorld({});
    spot = marble.getPosition();
    return level.holeAt(spot.x, spot.y) <= 0.0F;
}

} // namespace

int testedHoleCount() {
    return std::min(level.holeCount, maxPairs / std::max(level.holeCount, 1));
}

std::vector<ReturnSpot> findReturnSpots() {
    const RunState before = runState();
    std::vector<ReturnSpot> returns;
    for (int i = 0; i < testedHoleCount(); ++i) {
        const Hole& hole = level.allHoles()[static_cast<std::size_t>(i)];
        if (!(hole.depth > 0.0F) || !(hole.width > 0.0F)) { continue; }
        if (std::abs(hole.y) > -courseBack) { continue; } // no marble gets there
        for (const float side : {-dropDistance, dropDistance}) {
            ReturnSpot back = {i, false, {}};
            const float y = std::clamp(hole.y + side * hole.width, courseBack, -courseBack);
            back.found = dropMarble(hole.x, y, back.spot);
            returns.push_back(back);
        }
    }
    setRunState(before);
    return returns;
}

std::vector<Vector3> distinctSpots(const std::vector<ReturnSpot>& returns) {
    std::vector<Vector3> spots;
    for (const ReturnSpot& back : returns) {
        const bool known = std::any_of(spots.begin(), spots.end(), [&back](const Vector3& spot) {
            return (spot - back.spot).length() < 1.0F;
        });
        if (back.found && !known) { spots.push_back(back.spot); }
    }
    std::sort(spots.begin(), spots.end(),
              [](const Vector3& a, const Vector3& b) { return a.y < b.y; });
    return spots;
}
