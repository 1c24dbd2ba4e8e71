// Loads data of the game, with a message box on failure. resources.cpp also defines Level::load
// (sim/level.h) and Font::load (data/font.h).
#pragma once

// Fills the best times from their file or, after a message, with the defaults. Always returns true.
// Needs Game.levelCount.
bool loadBestTimes();
