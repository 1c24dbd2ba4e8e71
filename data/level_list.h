// The list of levels, "maps/maplist.dat": how many there are, then the file of each in playing
// order. The list is taken only when the file ends directly after the last name.
#pragma once

inline constexpr const char* levelListFile = "maps/maplist.dat";

// Fills Game.levelCount, levelFiles and levelTimes (each levelTime, none finished). False, with no
// message, when the list cannot be read; what was read by then stays.
bool loadLevelList();
