// The game's folder: the one whose maps, graphics and sounds the game works in.
#pragma once

#include <string>

// Makes the folder that a level file belongs to the current one: the nearest folder above the file
// that holds "graphics"; where there is none, the current folder if it holds "graphics" or "game",
// and else the installed data. `file` becomes a path that is right from there.
void enterGameFolder(std::string& file);
