// The ten best runs: the table, its file, and the end of a run, which may change it.
//
// A run's result is the sum of its level times. The file, in the working directory, holds ten
// entries on one line, each a time, a blank, a name and a blank.
#pragma once

#include "data/tokens.h"

inline constexpr const char* bestTimesFile = "highScore.dat";

inline constexpr int bestTimesShown = 10; // the kept table, best first
inline constexpr int candidateSlot = 10;  // takes a finished run's total before the sort

inline constexpr const char* candidateName = "_"; // the name until the player has typed one

struct BestTimeEntry {
    float time;               // seconds
    char name[tokenCapacity]; // zero-terminated, without white space
};

struct BestTimes {
    BestTimeEntry slots[bestTimesShown + 1];
};

extern BestTimes bestTimes;

// Fills the table from its file. Returns false when the file cannot be read or does not hold ten
// entries; the table is then partly filled (loadBestTimes in app/resources.h sets the defaults).
bool readBestTimes();

// Fills the table with ten runs in which no level was finished. Needs Game.levelCount.
void setDefaultBestTimes();

// Writes the table to its file. Returns false, after a message on standard error, when that fails;
// the old file is then still there.
bool saveBestTimes();

// Returns 1 when the first entry's time is greater than the second's, otherwise -1; never 0.
int compareBestTimes(const BestTimeEntry& first, const BestTimeEntry& second);

// Ends a run: sorts its total into the table, after entries of the same time. When it is among the
// ten best, Game.newBestEntry becomes its place and the name entry begins; otherwise -1. Returns
// whether the name entry begins.
bool finishRun();
