// The three pieces of the game. The rotation plays them in this order, for ever.
#pragma once

#include "art/sounds/score.h"

// The start of a run: bright and expectant. Its introduction lasts seven seconds, the count-down of
// the first level, so that the theme sets in when the marble may roll.
Piece offTheLine();

// Driving: straight and fast, in minor, with a rise near the end.
Piece downhillRace();

// Relaxed: an easy swing of glass and strings.
Piece glassGarden();
