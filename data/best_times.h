// The ten best runs: a table, the file that keeps it, and the end of a run that changes it.
//
// A run's result is the sum of its level times. "highScore.dat" in the working directory holds ten
// records on one line, each a time, a blank, a name and a blank.
#pragma once

#include "data/tokens.h"

inline constexpr const char* bestTimesFile = "highScore.dat";

inline constexpr int bestTimesShown = 10; // the kept table, best first
inline constexpr int candidateSlot = 10;  // takes a finished run's total before the sort

inline constexpr const char* candidateName = "_"; // stands until the player has typed a name

struct BestTimeEntry {
    float time;               // seconds
    char name[tokenCapacity]; // zero-terminated, without white space
};

struct BestTimes {
    BestTimeEntry slots[bestTimesShown + 1];
};

extern BestTimes bestTimes;

// Fills the table from its file. Returns false when that is missing or does not hold ten entries;
// what the table holds then is open. (loadBestTimes in app/resources.h puts the defaults there.)
bool readBestTimes();

// Fills the table with ten runs in which no level was finished. Needs Game.levelCount.
void setDefaultBestTimes();

// Writes the table to its file. When that fails, says why on standard error and returns false; the
// old table is then still there.
bool saveBestTimes();

// Returns 1 when the first entry's time is greater than the second's, otherwise -1; never 0.
int compareBestTimes(const BestTimeEntry& first, const BestTimeEntry& second);

// Ends a run: sorts its total into the table, after entries of the same time. When it is among the
// ten best, Game.newBestEntry becomes its place, the name entry begins, and the result is true.
bool finishRun();
