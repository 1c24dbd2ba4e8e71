// The red "-5" that flies from the marble to the clock after a reset, and takes its seconds there.
#pragma once

// Draws the label while a penalty is pending, and lets Game.frameTime of its time pass
// (sim/penalty.h), also in a pause.
void drawPenaltyLabel();
