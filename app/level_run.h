// A run: the levels of the list in order, each against its clock (sim/level_clock.h). The end of a
// run goes to the best times.
#pragma once

// Starts the level after Game.levelNumber, or ends the run after the last one: the handler of
// WM_GAME_START_LEVEL. Does nothing while the menu is open. A level that cannot be loaded is
// reported, and the program ends.
void startNextLevel();

// The turning points of the level's clock, checked after the frame of each running tick: starts the
// next level and plays the signals of the start and of the end of the time.
void checkLevelClock();
