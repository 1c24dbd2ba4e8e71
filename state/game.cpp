#include "state/game.h"

GameRecord::GameRecord() = default;

void GameRecord::endLevel() {
    paused = 0;
    levelDone = 1;
    stopped = 1;
}

void GameRecord::clearLevelTimes() {
    for (float& time : allLevelTimes()) {
        time = levelTime;
    }
}
