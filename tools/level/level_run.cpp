#include "tools/level/level_run.h"

#include <algorithm>
#include <cstring>

#include "data/mip_chain.h"
#include "platform/regular_file.h"
#include "sim/level_clock.h"
#include "sim/penalty.h"
#include "sim/simulation.h"
#include "state/game.h"

namespace {

// The level is played as the second of two: the first of a run has a longer count-down.
constexpr int levelsInRun = 2;

int catches = 0;

bool readPicture(const char* fileName, std::uint8_t* pixels, std::int32_t capacity) {
    constexpr std::size_t headers = bitmapFileHeaderSize + bitmapInfoHeaderSize;
    const std::size_t most = headers + static_cast<std::size_t>(capacity);
    std::vector<std::uint8_t> file;
    std::string why;
    if (!readRegularFile(fileName, most, file, why) && file.size() < most) { return false; }
    file.resize(std::max(file.size(), headers)); // missing bytes of the headers count as 0
    std::uint8_t infoHeader[bitmapInfoHeaderSize];
    std::memcpy(infoHeader, file.data() + bitmapFileHeaderSize, sizeof infoHeader);
    const std::int64_t bytes = pixelBytes(parseBitmapInfo(infoHeader));
    if (bytes < 0 || bytes > capacity) { return false; }
    const std::size_t there = std::min(file.size() - headers, static_cast<std::size_t>(bytes));
    std::copy_n(file.begin() + headers, there, pixels);
    swapRedAndBlue(pixels, bytes);
    return true;
}

bool readTexture(Level& into, const char* baseName, std::string& picture) {
    return readMipChain(groundChain, baseName, readPicture, into.texturePixels[0], picture);
}

Controls controlsOf(Keys keys) {
    Controls controls;
    controls.left = (keys & leftKey) != 0;
    controls.right = (keys & rightKey) != 0;
    controls.up = (keys & upKey) != 0;
    controls.down = (keys & downKey) != 0;
    controls.turbo = (keys & turboKey) != 0;
    return controls;
}

} // namespace

bool startRun(const char* levelFile, LevelFileReport& report) {
    Game.penaltyPending = 0;
    Game.penaltyFade = fullPenaltyFade;
    Game.levelCount = levelsInRun;
    Game.levelNumber = levelsInRun;
    Game.levelTimes.reset(new float[levelsInRun]{levelTime, levelTime});
    catches = 0;
    resetLevel();
    if (!readLevelFile(levelFile, level, marble, readTexture, report)) { return false; }
    Game.turbo = fullTurbo;
    placeAtStart();
    return true;
}

void tickRun(Keys keys, float dt) {
    Game.frameTime = dt;
    advanceClocks();
    if (!Game.levelDone && stepWorld(controlsOf(keys)).resetMarble) { ++catches; }
    agePenalty();
    checkClock();
}

bool runIsOver() {
    return Game.levelDone != 0 || Game.clock < levelNotFinished;
}

RunState runState() {
    return {.rolling = marble,
            .clock = Game.clock,
            .levelEndAt = Game.levelEndAt,
            .holdTime = Game.holdTime,
            .turbo = Game.turbo,
            .penaltyFade = Game.penaltyFade,
            .penaltyPending = Game.penaltyPending != 0,
            .done = Game.levelDone != 0,
            .result = Game.levelTimes[levelsInRun - 1],
            .catches = catches};
}

void setRunState(const RunState& state) {
    marble = state.rolling;
    Game.clock = state.clock;
    Game.levelEndAt = state.levelEndAt;
    Game.holdTime = state.holdTime;
    Game.turbo = state.turbo;
    Game.penaltyFade = state.penaltyFade;
    Game.penaltyPending = state.penaltyPending ? 1 : 0;
    Game.levelDone = state.done ? 1 : 0;
    Game.levelTimes[levelsInRun - 1] = state.result;
    Game.levelNumber = levelsInRun;
    catches = state.catches;
}
