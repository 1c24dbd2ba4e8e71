#include "data/best_times.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>

#include "app/game.h"

namespace {

// Written in full before it takes the place of the table, so that a full disk costs nothing.
constexpr const char* newBestTimesFile = "highScore.dat.new";

constexpr const char* defaultName = "aaa";

void setEntry(BestTimeEntry& entry, float time, const char* name) {
    entry.time = time;
    std::snprintf(entry.name, sizeof entry.name, "%s", name);
}

bool readTable() {
    TokenReader reader;
    if (!reader.open(bestTimesFile)) return false;
    for (int i = 0; i < bestTimesShown; ++i) {
        BestTimeEntry& entry = bestTimes.slots[i];
        if (!reader.readFloat(entry.time) || !reader.readToken(entry.name)) return false;
    }
    return true;
}

bool writeTable(const char* fileName) {
    std::ofstream file(fileName, std::ios::out | std::ios::binary | std::ios::trunc);
    for (int i = 0; i < bestTimesShown; ++i) {
        file << bestTimes.slots[i].time << ' ' << bestTimes.slots[i].name << ' ';
    }
    file.close();
    return file.good();
}

float totalOfRun() {
    float total = 0.0F;
    for (std::int32_t i = 0; i < Game.levelCount; ++i) {
        total += Game.levelTimes[i];
    }
    return total;
}

void sortTable() {
    std::stable_sort(
        std::begin(bestTimes.slots), std::end(bestTimes.slots),
        [](const BestTimeEntry& a, const BestTimeEntry& b) { return compareBestTimes(b, a) > 0; });
}

// The place of the run just finished, -1 when it is not among the ten best.
int placeOfCandidate() {
    int place = bestTimesShown - 1;
    while (place >= 0 && std::strcmp(bestTimes.slots[place].name, candidateName) != 0) {
        --place;
    }
    return place;
}

} // namespace

bool loadBestTimes() {
    if (readTable()) return true;
    MessageBoxA(nullptr, "Creating new highScores file", "Notice", MB_OK);
    const auto unfinished = static_cast<float>(Game.levelCount * static_cast<int>(levelTime));
    for (int i = 0; i < bestTimesShown; ++i) {
        setEntry(bestTimes.slots[i], unfinished, defaultName);
    }
    return true;
}

bool saveBestTimes() {
    if (writeTable(newBestTimesFile) && std::rename(newBestTimesFile, bestTimesFile) == 0) {
        return true;
    }
    std::remove(newBestTimesFile);
    return false;
}

int compareBestTimes(const BestTimeEntry& first, const BestTimeEntry& second) {
    return first.time > second.time ? 1 : -1;
}

bool finishRun() {
    setEntry(bestTimes.slots[candidateSlot], totalOfRun(), candidateName);
    sortTable();
    Game.newBestEntry = placeOfCandidate();
    if (Game.newBestEntry < 0) return false;
    Game.screen = Screen::NameEntry;
    Game.lastKey = 0;
    Game.nameCursor = 0; // a name that was never finished does not shorten this one
    Game.paused = 0;
    Game.levelDone = 1;
    Game.stopped = 1;
    return true;
}
