// The red "-5" that flies from the marble to the clock after a reset, and takes its seconds there.
#pragma once

// Draws the label while one is pending and lets Game.frameTime of its life pass, also in a pause.
// In the frame in which its life runs out the clock loses 4 seconds: with the second for which the
// reset holds the marble that makes the 5 it shows.
void drawPenaltyLabel();
