#include "app/frame.h"

#include <GL/gl.h>

#include "app/audio.h"
#include "app/game.h"
#include "app/screens.h"
#include "data/best_times_screen.h"
#include "data/level.h"
#include "data/name_entry.h"
#include "sim/marble.h"
#include "sim/penalty_label.h"
#include "sim/view_frame.h"

namespace {

void endPlay() {
    if (Game.musicPlaying) stopMusic();
    Game.endLevel();
}

void drawMenuIfOpen() {
    if (!Game.menuOpen) return;
    drawShade();
    drawMenu();
}

void present() {
    SwapBuffers(Game.deviceContext);
}

// Clears for the frame that follows. In fog the sky has its colour, otherwise it is black.
void prepareNextFrame() {
    constexpr float perByte = 0.003921569F; // 1 / 255
    const std::uint32_t c = Game.fogOn ? level.getFogColourCode() : 0;
    glClearColor(static_cast<float>(c >> 16 & 255U) * perByte,
                 static_cast<float>(c >> 8 & 255U) * perByte,
                 static_cast<float>(c & 255U) * perByte, 0.0F);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void drawTitleScreen(bool entered) {
    endPlay();
    drawTitlePicture(entered);
    drawMenuIfOpen();
    present();
}

void drawBestTimesScreen(bool entered) {
    endPlay();
    drawBackPicture(entered);
    drawShade();
    drawBestTimes();
    drawMenuIfOpen();
    present();
}

void drawNameEntryScreen(bool entered) {
    takeNameKey();
    drawBackPicture(entered);
    drawShade();
    drawBestTimes();
    drawMenuIfOpen();
    present();
}

void drawLevelScreen() {
    Game.trianglesThisSecond += level.drawGround(viewFrame, Game.farSight != 0, Game.fogOn != 0);
    marble.draw(viewFrame, level, Game.normalMode != 0);
    drawTurboGauge();
    drawStatsAndClock();
    drawBanner();
    drawPenaltyLabel();
    ++Game.framesThisSecond;
    drawMenuIfOpen();
    present();
    prepareNextFrame();
}

} // namespace

void drawFrame() {
    const bool entered = Game.screen != Game.drawnScreen;
    Game.drawnScreen = Game.screen;
    switch (Game.screen) {
    case Screen::Title: drawTitleScreen(entered); break;
    case Screen::Level: drawLevelScreen(); break;
    case Screen::BestTimes: drawBestTimesScreen(entered); break;
    case Screen::NameEntry: drawNameEntryScreen(entered); break;
    }
}
