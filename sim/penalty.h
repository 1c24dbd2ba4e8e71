// The penalty for a reset: five seconds, of which the marble is held for one. The clock loses the
// other four when the label that shows the penalty has reached it.
#pragma once

// Lets Game.frameTime seconds of a pending penalty pass, also in a pause. When its time is over the
// clock loses 4 seconds. Called once a frame of a level, after the label is drawn.
void agePenalty();
