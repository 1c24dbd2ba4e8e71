#include "app/frame.h"

#include "app/audio.h"
#include "app/bitmap_file.h"
#include "app/name_entry.h"
#include "data/asset_files.h"
#include "data/file_error.h"
#include "platform/windows_api.h"
#include "render/best_times_screen.h"
#include "render/frame_state.h"
#include "render/penalty_label.h"
#include "render/screens.h"
#include "sim/level.h"
#include "sim/marble.h"
#include "sim/view_frame.h"
#include "state/game.h"

namespace {

// A picture of the whole screen: its file, the message when that cannot be read, and its fields in
// the Game record. It is read when its screen is first entered. After a failure the screen is drawn
// without it, and it is read again when the screen is entered again.
struct ScreenPicture {
    const char* fileName;
    const char* failure;
    std::uint8_t& pending;
    std::uint8_t* pixels;
};

const ScreenPicture titlePicture = {titlePictureFile, "could not load.bmp title", Game.titlePending,
                                    Game.titlePicture};
const ScreenPicture backPicture = {backPictureFile, "could not load back.bmp", Game.backPending,
                                   Game.backPicture};

void readPicture(const ScreenPicture& picture) {
    if (readBitmapOfSize(picture.fileName, screenWidth, screenHeight, picture.pixels)) {
        picture.pending = 0;
    } else {
        logFileError(picture.fileName, "this is not a bitmap of the screen's size with 24 bits a "
                                       "pixel, or it cannot be read");
        MessageBoxA(Game.window, picture.failure, errorCaption, MB_OK);
    }
}

void showPicture(const ScreenPicture& picture, bool entered) {
    if (picture.pending && entered) { readPicture(picture); }
    if (!picture.pending) { drawPicture(picture.pixels); }
}

void endPlay() {
    if (Game.musicPlaying) { stopMusic(); }
    Game.endLevel();
}

void drawMenuIfOpen() {
    if (!Game.menuOpen) { return; }
    drawShade();
    drawMenu();
}

void present() {
    SwapBuffers(Game.deviceContext);
}

void drawTitleScreen(bool entered) {
    endPlay();
    showPicture(titlePicture, entered);
    drawMenuIfOpen();
    present();
}

void drawBestTimesScreen(bool entered) {
    endPlay();
    showPicture(backPicture, entered);
    drawShade();
    drawBestTimes();
    drawMenuIfOpen();
    present();
}

void drawNameEntryScreen(bool entered) {
    takeNameKey();
    showPicture(backPicture, entered);
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
    clearFrame(Game.fogOn != 0);
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
