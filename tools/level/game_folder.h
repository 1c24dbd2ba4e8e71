// Finds the game's folder, which holds maps, graphics and sounds.
#pragma once

#include <string>

// Changes the current folder to the game folder of a level file: the nearest folder above the file
// that holds "graphics"; otherwise the current folder if it holds "graphics", or its folder "game",
// or the installed data. `file` becomes a path that is valid from there.
void enterGameFolder(std::string& file);

// Returns a path that is still valid after that.
std::string absolutePath(const std::string& file);
