#include "data/best_times.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "app/game.h"

namespace {

using std::filesystem::path;

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

bool writeTable(std::ofstream& file) {
    for (int i = 0; i < bestTimesShown; ++i) {
        file << bestTimes.slots[i].time << ' ' << bestTimes.slots[i].name << ' ';
    }
    file.close();
    return file.good();
}

std::ofstream create(const path& file) {
    return std::ofstream(file, std::ios::out | std::ios::binary | std::ios::trunc);
}

// Makes the file where there is none; false when it may not be written.
bool mayBeWritten(const path& file) {
    return std::ofstream(file, std::ios::app).is_open();
}

// Writes the table in full beside its file before it takes its place, so that a full disk costs
// nothing. In a folder that takes no new file the table is written over.
bool replaceTable(const path& file) {
    const path newFile = path(file) += ".new";
    std::ofstream beside = create(newFile);
    if (!beside.is_open()) {
        std::ofstream over = create(file);
        return writeTable(over);
    }
    std::error_code error;
    if (writeTable(beside)) {
        std::filesystem::rename(newFile, file, error);
        if (!error) return true;
    }
    std::filesystem::remove(newFile, error);
    return false;
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
    if (!mayBeWritten(bestTimesFile)) return false;
    std::error_code error;
    const path file = std::filesystem::canonical(bestTimesFile, error); // behind a link
    return !error && replaceTable(file);
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
    Game.endLevel();
    return true;
}
