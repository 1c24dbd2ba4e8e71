#include "app/name_entry.h"

#include "app/effects.h"
#include "data/asset_files.h"
#include "data/best_times.h"
#include "platform/windows_api.h"
#include "state/game.h"

namespace {

constexpr std::int8_t firstLetter = 'A';
constexpr std::int8_t lastLetter = 'z';
constexpr int nameLength = 3;
constexpr UINT refusalBeep = 10000; // not a named beep, so the system's default one

void typeLetter(char* name, char letter) {
    name[Game.nameCursor] = letter;
    name[Game.nameCursor + 1] = candidateName[0];
    name[Game.nameCursor + 2] = '\0';
    ++Game.nameCursor;
    playEffect(menuSound);
}

void takeKey(char* name, std::int8_t key) {
    if (key >= firstLetter && key <= lastLetter) {
        typeLetter(name, static_cast<char>(key));
    } else {
        MessageBeep(refusalBeep);
    }
    if (Game.nameCursor >= nameLength) {
        Game.screen = Screen::BestTimes;
        Game.nameCursor = 0;
        name[nameLength] = '\0';
    }
}

} // namespace

void takeNameKey() {
    Game.endLevel();
    if (Game.lastKey == 0) { return; }
    takeKey(bestTimes.slots[Game.newBestEntry].name, Game.lastKey);
    Game.lastKey = 0;
}
