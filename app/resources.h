// The data that the game loads with a message box where it fails. Level::load (sim/level.h) and
// Font::load (data/font.h) are defined in resources.cpp, too.
#pragma once

// Fills the best times from their file or, after a message, with the defaults. Always true. Needs
// Game.levelCount.
bool loadBestTimes();
