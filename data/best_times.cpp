#include "data/best_times.h"

#include <algorithm>
#include <cstring>
#include <sstream>
#include <string>

#include "data/file_error.h"
#include "data/safe_file.h"
#include "state/game.h"

namespace {

constexpr const char* defaultName = "aaa";

void setEntry(BestTimeEntry& entry, float time, const char* name) {
    entry.time = time;
    std::snprintf(entry.name, sizeof entry.name, "%s", name);
}

std::string textOfTable() {
    std::ostringstream text;
    for (int i = 0; i < bestTimesShown; ++i) {
        text << bestTimes.slots[i].time << ' ' << bestTimes.slots[i].name << ' ';
    }
    return text.str();
}

float totalOfRun() {
    float total = 0.0F;
    for (const float time : Game.allLevelTimes()) {
        total += time;
    }
    return total;
}

void sortTable() {
    std::stable_sort(
        std::begin(bestTimes.slots), std::end(bestTimes.slots),
        [](const BestTimeEntry& a, const BestTimeEntry& b) { return compareBestTimes(b, a) > 0; });
}

// Returns the place of the run just finished, or -1 when it is not among the ten best.
int placeOfCandidate() {
    int place = bestTimesShown - 1;
    while (place >= 0 && std::strcmp(bestTimes.slots[place].name, candidateName) != 0) {
        --place;
    }
    return place;
}

} // namespace

bool readBestTimes() {
    TokenReader reader;
    if (!openOrLog(reader, bestTimesFile)) { return false; }
    for (int i = 0; i < bestTimesShown; ++i) {
        BestTimeEntry& entry = bestTimes.slots[i];
        if (!reader.readFloat(entry.time) || !reader.readToken(entry.name)) { return false; }
    }
    return true;
}

void setDefaultBestTimes() {
    const auto unfinished = static_cast<float>(Game.levelCount * static_cast<int>(levelTime));
    for (int i = 0; i < bestTimesShown; ++i) {
        setEntry(bestTimes.slots[i], unfinished, defaultName);
    }
}

bool saveBestTimes() {
    std::string why;
    if (replaceFile(bestTimesFile, textOfTable(), why)) { return true; }
    logFileError(bestTimesFile, "the best times are not saved: " + why);
    return false;
}

int compareBestTimes(const BestTimeEntry& first, const BestTimeEntry& second) {
    return first.time > second.time ? 1 : -1;
}

bool finishRun() {
    setEntry(bestTimes.slots[candidateSlot], totalOfRun(), candidateName);
    sortTable();
    Game.newBestEntry = placeOfCandidate();
    if (Game.newBestEntry < 0) { return false; }
    Game.screen = Screen::NameEntry;
    Game.lastKey = 0;
    Game.nameCursor = 0; // the last name entry may have been left unfinished
    Game.endLevel();
    return true;
}
