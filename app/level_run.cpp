#include "app/level_run.h"

#include "app/audio.h"
#include "app/effects.h"
#include "data/asset_files.h"
#include "data/best_times.h"
#include "platform/windows_api.h"
#include "sim/level.h"
#include "sim/level_clock.h"
#include "sim/marble.h"
#include "state/game.h"

namespace {

constexpr float clockAtStartOfRun = levelTime + 7.0F; // seconds: a longer count-down

void beginRun() {
    Game.clock = clockAtStartOfRun;
    if (Game.midiOn && !Game.musicPlaying) { startMusic(); }
    Game.clearLevelTimes();
}

void loadLevel() {
    const auto index = static_cast<std::size_t>(Game.levelNumber - 1);
    if (!level.load(Game.levelFiles[index].get(), marble)) {
        MessageBoxA(Game.window, "Unable to initialize map", fileErrorCaption, MB_OK);
        PostQuitMessage(0);
    }
    Game.turbo = fullTurbo;
    Game.screen = Screen::Level;
}

// Ends the run after its last level. Returns whether the player types a name.
bool endRun() {
    Game.screen = Screen::BestTimes;
    Game.stopped = 1;
    return Game.levelNumber == Game.levelCount + 1 && finishRun();
}

// The next tick measures its time from here, so the time spent loading does not count.
void restartTime() {
    LARGE_INTEGER counter = {};
    QueryPerformanceCounter(&counter);
    Game.lastCounter = counter.QuadPart;
}

} // namespace

void startNextLevel() {
    if (Game.menuOpen) { return; }
    ++Game.levelNumber;
    resetLevel();
    if (Game.levelNumber == 1) { beginRun(); }
    if (Game.levelNumber >= 1 && Game.levelNumber <= Game.levelCount) { loadLevel(); }
    if (Game.levelNumber > Game.levelCount && endRun()) { return; }
    placeAtStart();
    restartTime();
}

void checkLevelClock() {
    const ClockEvents events = checkClock();
    if (events.levelIsOver) { PostMessageA(Game.window, WM_GAME_START_LEVEL, 0, 0); }
    if (events.timeIsUp) { playEffect(timeUpSound); }
    if (events.countDownIsOver) { playEffect(goSound); }
}
