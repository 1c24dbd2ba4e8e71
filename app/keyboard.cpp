#include "app/keyboard.h"

#include "app/audio.h"
#include "app/effects.h"
#include "data/asset_files.h"
#include "data/best_times.h"
#include "platform/windows_api.h"
#include "render/frame_state.h"
#include "state/game.h"
#include "state/menu.h"

namespace {

constexpr float cameraLagCount = 10.0F; // the lag is 0 to 9 and wraps around

void toggle(std::uint8_t& flag) {
    flag ^= 1;
}

void postKey(int key) {
    PostMessageA(Game.window, WM_KEYDOWN, static_cast<WPARAM>(key), 0);
}

void startNewGame() {
    Game.menuOpen = 0;
    if (Game.musicPlaying) { stopMusic(); }
    Game.levelNumber = 0;
    PostMessageA(Game.window, WM_GAME_START_LEVEL, 0, 0);
}

// Abandons the run; the posted Escape closes the menu.
void showBestTimes() {
    Game.screen = Screen::BestTimes;
    Game.newBestEntry = -1;
    Game.clearLevelTimes();
    postKey(VK_ESCAPE);
}

void quit() {
    saveBestTimes();
    PostMessageA(Game.window, WM_DESTROY, 0, 0);
}

void raiseCameraLag() {
    Game.cameraLag += 1.0F;
    if (Game.cameraLag >= cameraLagCount) { Game.cameraLag = 0.0F; }
}

void lowerCameraLag() {
    Game.cameraLag -= 1.0F;
    if (Game.cameraLag < 0.0F) { Game.cameraLag = cameraLagCount - 1.0F; }
}

void chooseMenuItem() {
    const MenuLine& line = menuLine(Game.menuItem);
    switch (line.action) {
    case MenuAction::StartRun: startNewGame(); break;
    case MenuAction::ShowBestTimes: showBestTimes(); break;
    case MenuAction::GoTo: Game.menuItem = line.target; break;
    case MenuAction::Quit: quit(); break;
    case MenuAction::PostKey: postKey(line.target); break;
    case MenuAction::RaiseCameraLag: raiseCameraLag(); break;
    }
}

// Both pages wrap around; "Far Sight" is skipped while fog is on.
void moveUp() {
    const MenuPage& page = menuPageOf(Game.menuItem);
    Game.menuItem = Game.menuItem == page.first ? page.last : Game.menuItem - 1;
    if (Game.menuItem == MenuItem::FarSight && Game.fogOn) { --Game.menuItem; }
}

void moveDown() {
    const MenuPage& page = menuPageOf(Game.menuItem);
    Game.menuItem = Game.menuItem == page.last ? page.first : Game.menuItem + 1;
    if (Game.menuItem == MenuItem::FarSight && Game.fogOn) { ++Game.menuItem; }
}

void pressEnter() {
    if (!Game.menuOpen) { return; }
    playEffect(menuSound);
    chooseMenuItem();
}

void pressEscape() {
    playEffect(menuSound);
    if (!Game.menuOpen) {
        Game.menuOpen = 1;
        Game.menuItem = MenuItem::NewGame;
        Game.paused = 1;
    } else if (Game.menuItem >= optionsPage.first) {
        Game.menuItem = MenuItem::NewGame;
    } else {
        Game.menuOpen = 0;
        Game.paused = 0;
    }
}

void pressLeft() {
    if (!Game.menuOpen) { return; }
    playEffect(menuSound);
    if (Game.menuItem == MenuItem::CameraLag) {
        lowerCameraLag();
    } else {
        postKey(VK_RETURN);
    }
}

void pressUp() {
    if (!Game.menuOpen) { return; }
    playEffect(menuSound);
    moveUp();
}

void pressDown() {
    if (!Game.menuOpen) { return; }
    playEffect(menuSound);
    moveDown();
}

void skipLevel() {
    if (Game.screen == Screen::Level) { PostMessageA(Game.window, WM_GAME_START_LEVEL, 0, 0); }
}

void toggleFarSight() {
    if (!Game.fogOn) { toggle(Game.farSight); }
}

void toggleFog() {
    toggle(Game.fogOn);
    if (Game.fogOn) { Game.farSight = 0; }
    switchFog(Game.fogOn != 0);
}

void toggleMidi() {
    toggle(Game.midiOn);
    if (Game.midiOn) {
        if (!Game.musicPlaying && Game.screen == Screen::Level) { startMusic(); }
    } else if (Game.musicPlaying) {
        stopMusic();
    }
}

void togglePause() {
    if (Game.screen == Screen::Level && !Game.menuOpen) { toggle(Game.paused); }
}

void pressOther(WPARAM key) {
    if (key != VK_SPACE) { return; }
    if (Game.screen != Screen::Level && Game.screen != Screen::NameEntry) {
        Game.screen = Screen::Title;
    }
}

} // namespace

void handleKeyDown(WPARAM key) {
    Game.lastKey = static_cast<std::int8_t>(key & 0xFF);
    switch (key) {
    case VK_RETURN: pressEnter(); break;
    case VK_ESCAPE: pressEscape(); break;
    case VK_LEFT: pressLeft(); break;
    case VK_UP: pressUp(); break;
    case VK_RIGHT: postKey(VK_RETURN); break;
    case VK_DOWN: pressDown(); break;
    case VK_F1: skipLevel(); break;
    case VK_F2: toggle(Game.showStatistics); break;
    case VK_F3: toggle(Game.normalMode); break;
    case VK_F4: toggleFarSight(); break;
    case VK_F5: toggleFog(); break;
    case VK_F6: toggleMidi(); break;
    case VK_F12: togglePause(); break;
    default: pressOther(key); break;
    }
}
