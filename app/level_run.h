// A run: the levels of the list in order, each against its clock (sim/level_clock.h), and at the
// end the best times.
#pragma once

// Starts the level after Game.levelNumber, or ends the run after the last one: the handler of
// WM_GAME_START_LEVEL. Does nothing while the menu is open. A level that cannot be loaded is
// reported, and the program ends.
void startNextLevel();

// Handles the events of the level's clock: starts the next level, and plays the sounds of the start
// and of the end of the time. Called after the frame of each running tick.
void checkLevelClock();
