// The penalty for a reset: five seconds, of which the marble is held for one. The clock loses the
// other four when the label that shows the penalty has reached it.
#pragma once

// Advances a pending penalty by Game.frameTime seconds. When its time is over the clock loses its
// seconds. Called once a frame of a level, also in a pause, after the label is drawn.
void agePenalty();
