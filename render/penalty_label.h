// The red "-5" that moves from the marble to the clock after a reset.
#pragma once

// Draws the label while a penalty is pending, then advances the penalty (agePenalty in
// sim/penalty.h), also in a pause.
void drawPenaltyLabel();
