// The list of levels: a file with their number, then the file name of each in playing order. It
// must end directly after the last name.
#pragma once

inline constexpr const char* levelListFile = "maps/maplist.dat";

// Fills Game.levelCount, levelFiles and levelTimes (each levelTime: not finished). Returns false,
// without a message, when the list cannot be read; the list is then empty.
bool loadLevelList();
