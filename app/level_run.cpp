#include "app/level_run.h"

#include "app/audio.h"
#include "app/effects.h"
#include "app/game.h"
#include "data/best_times.h"
#include "data/level.h"
#include "sim/camera.h"
#include "sim/marble.h"
#include "sim/simulation.h"

namespace {

constexpr float clockAtStart = 46.5F;      // seconds: the level's time and a count-down
constexpr float clockAtStartOfRun = 52.0F; // with a longer one before the first level
constexpr Vector3 cameraAtStart(0.0F, -3000.0F, -6000.0F); // from the marble, world units

void resetForLevel() {
    Game.levelDone = 0;
    Game.clock = clockAtStart;
    Game.levelEndAt = levelNotFinished;
    Game.holdTime = 0.0F;
    Game.stopped = 0;
    Game.paused = 0;
    Game.newBestEntry = -1;
}

void beginRun() {
    Game.clock = clockAtStartOfRun;
    if (Game.midiOn && !Game.musicPlaying) startMusic();
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

// Ends the run behind its last level. Whether the player is to type a name.
bool endRun() {
    Game.screen = Screen::BestTimes;
    Game.stopped = 1;
    return Game.levelNumber == Game.levelCount + 1 && finishRun();
}

void placeAtStart() {
    placeMarble(0.0F, startLine);
    cameraPosition = marble.getPosition() + cameraAtStart;
}

// The next tick measures its time from here, so loading costs the player nothing.
void restartTime() {
    LARGE_INTEGER counter = {};
    QueryPerformanceCounter(&counter);
    Game.lastCounter = counter.QuadPart;
}

void checkLevelEnd() {
    if (Game.clock >= Game.levelEndAt) return;
    if (Game.levelEndAt == levelNotFinished) Game.levelNumber = Game.levelCount;
    PostMessageA(Game.window, WM_GAME_START_LEVEL, 0, 0);
}

void rearmSignals() {
    if (Game.clock < levelTime) return;
    Game.goPlayed = 0;
    Game.timeUpPlayed = 0;
}

void signalTimeUp() {
    if (Game.clock >= 0.0F || Game.levelEndAt != levelNotFinished || Game.timeUpPlayed) return;
    playEffect(timeUpSound);
    Game.timeUpPlayed = 1;
}

void signalStart() {
    if (Game.clock > levelTime || Game.goPlayed) return;
    playEffect(goSound);
    Game.goPlayed = 1;
}

} // namespace

void startNextLevel() {
    if (Game.menuOpen) return;
    ++Game.levelNumber;
    resetForLevel();
    if (Game.levelNumber == 1) beginRun();
    if (Game.levelNumber >= 1 && Game.levelNumber <= Game.levelCount) loadLevel();
    if (Game.levelNumber > Game.levelCount && endRun()) return;
    placeAtStart();
    restartTime();
}

void checkLevelClock() {
    checkLevelEnd();
    rearmSignals();
    signalTimeUp();
    signalStart();
}
