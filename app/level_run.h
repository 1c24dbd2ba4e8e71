// A run: the levels of the list in order, each against its clock.
//
// Game.clock counts down from a count-down of 1.5 s (7 s on level 1) above 45 seconds. A level
// reached in time records its time and leads to the next one a second later; one whose time runs
// out ends the run four seconds later. The end of a run goes to the best times.
#pragma once

// Starts the level after Game.levelNumber, or ends the run behind the last one: the handler of
// WM_GAME_START_LEVEL. Does nothing while the menu is open. A level that cannot be loaded is
// reported, and the program ends.
void startNextLevel();

// The clock's turning points, looked at after each running tick's frame: the level's end, the time
// being up, the start signal.
void checkLevelClock();
