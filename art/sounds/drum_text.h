// The drums of General MIDI by name, and the rows of a drum line.
#pragma once

#include <string>
#include <vector>

// One drum with its grid.
struct DrumRow {
    int pitch; // the key that plays it
    std::string grid;
};

// Reads "kick X...x... / snare ..X...X."; false, with the unknown name in `error`, otherwise.
bool readDrumRows(const std::string& text, std::vector<DrumRow>& rows, std::string& error);
