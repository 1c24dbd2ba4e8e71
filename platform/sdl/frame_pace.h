// How fast the game runs. It draws a frame whenever no message waits, so the processor rests only
// here, after a frame.
#pragma once

// Returns 4 ms after the last return of this function at the earliest: 250 frames a second where no
// vertical sync holds the game back.
void waitForNextFrame();

// For a game that nobody sees: returns after 0.1 s, or as soon as an event of SDL waits.
void waitWhileHidden();
