#include "sim/penalty.h"

#include "state/game.h"

namespace {

constexpr float secondsTaken = 4.0F;

} // namespace

void agePenalty() {
    if (!Game.penaltyPending) { return; }
    Game.penaltyFade -= Game.frameTime;
    if (Game.penaltyFade > 0.0F) { return; }
    Game.clock -= secondsTaken;
    Game.penaltyFade = fullPenaltyFade;
    Game.penaltyPending = 0;
}
