// Reads a grid of steps, the notation of patterns and drums (see score.h).
#pragma once

#include <string>
#include <vector>

// A sign of the grid that is neither silence nor a hold.
struct GridHit {
    int start;  // ticks
    int length; // ticks, with the holds behind it
    char sign;
};

// Appends the hits of a grid that is repeated until it fills so many bars. False, with the reason
// in `error`, when a bar's steps do not divide it evenly or the repeats do not come out even.
bool readGrid(const std::string& text, int barCount, int ticksPerBar, std::vector<GridHit>& hits,
              std::string& error);
