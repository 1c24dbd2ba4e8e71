#include "sim/penalty.h"

#include "state/game.h"

namespace {

constexpr float clockPenalty = 4.0F; // seconds

} // namespace

void agePenalty() {
    if (!Game.penaltyPending) { return; }
    Game.penaltyFade -= Game.frameTime;
    if (Game.penaltyFade > 0.0F) { return; }
    Game.clock -= clockPenalty;
    Game.penaltyFade = fullPenaltyFade;
    Game.penaltyPending = 0;
}
