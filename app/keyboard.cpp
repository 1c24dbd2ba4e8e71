#include "app/keyboard.h"

#include <GL/gl.h>

#include "app/audio.h"
#include "app/effects.h"
#include "app/game.h"
#include "data/best_times.h"

namespace {

constexpr float cameraLags = 10.0F; // the lag is 0 to 9, going round

void toggle(std::uint8_t& flag) {
    flag ^= 1;
}

void postKey(int key) {
    PostMessageA(Game.window, WM_KEYDOWN, static_cast<WPARAM>(key), 0);
}

bool onOptionsPage() {
    return Game.menuItem >= MenuItem::Statistics;
}

void startNewGame() {
    Game.menuOpen = 0;
    if (Game.musicPlaying) stopMusic();
    Game.levelNumber = 0;
    PostMessageA(Game.window, WM_GAME_START_LEVEL, 0, 0);
}

// Gives up the run; the posted Escape closes the menu.
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
    if (Game.cameraLag >= cameraLags) Game.cameraLag = 0.0F;
}

void lowerCameraLag() {
    Game.cameraLag -= 1.0F;
    if (Game.cameraLag < 0.0F) Game.cameraLag = cameraLags - 1.0F;
}

void chooseMenuItem() {
    switch (Game.menuItem) {
    case MenuItem::NewGame: startNewGame(); break;
    case MenuItem::HighScore: showBestTimes(); break;
    case MenuItem::Options: Game.menuItem = MenuItem::Statistics; break;
    case MenuItem::Quit: quit(); break;
    case MenuItem::Statistics: postKey(VK_F2); break;
    case MenuItem::Fog: postKey(VK_F5); break;
    case MenuItem::FarSight: postKey(VK_F4); break;
    case MenuItem::Normal: postKey(VK_F3); break;
    case MenuItem::CameraLag: raiseCameraLag(); break;
    case MenuItem::Midi: postKey(VK_F6); break;
    case MenuItem::Done: Game.menuItem = MenuItem::Options; break;
    default: break;
    }
}

// Both pages go round; in fog "Far Sight" is stepped over.
void moveUp() {
    if (Game.menuItem == MenuItem::NewGame) {
        Game.menuItem = MenuItem::Quit;
    } else if (Game.menuItem == MenuItem::Statistics) {
        Game.menuItem = MenuItem::Done;
    } else {
        --Game.menuItem;
    }
    if (Game.menuItem == MenuItem::FarSight && Game.fogOn) Game.menuItem = MenuItem::Fog;
}

void moveDown() {
    if (Game.menuItem == MenuItem::Quit) {
        Game.menuItem = MenuItem::NewGame;
    } else if (Game.menuItem == MenuItem::Done) {
        Game.menuItem = MenuItem::Statistics;
    } else {
        ++Game.menuItem;
    }
    if (Game.menuItem == MenuItem::FarSight && Game.fogOn) Game.menuItem = MenuItem::Normal;
}

void pressEnter() {
    if (!Game.menuOpen) return;
    playEffect(menuSound);
    chooseMenuItem();
}

void pressEscape() {
    playEffect(menuSound);
    if (!Game.menuOpen) {
        Game.menuOpen = 1;
        Game.menuItem = MenuItem::NewGame;
        Game.paused = 1;
    } else if (onOptionsPage()) {
        Game.menuItem = MenuItem::NewGame;
    } else {
        Game.menuOpen = 0;
        Game.paused = 0;
    }
}

void pressLeft() {
    if (!Game.menuOpen) return;
    playEffect(menuSound);
    if (Game.menuItem == MenuItem::CameraLag) {
        lowerCameraLag();
    } else {
        postKey(VK_RETURN);
    }
}

void pressUp() {
    if (!Game.menuOpen) return;
    playEffect(menuSound);
    moveUp();
}

void pressDown() {
    if (!Game.menuOpen) return;
    playEffect(menuSound);
    moveDown();
}

void skipLevel() {
    if (Game.screen == Screen::Level) PostMessageA(Game.window, WM_GAME_START_LEVEL, 0, 0);
}

void toggleFarSight() {
    if (!Game.fogOn) toggle(Game.farSight);
}

void toggleFog() {
    toggle(Game.fogOn);
    if (Game.fogOn) {
        Game.farSight = 0;
        glEnable(GL_FOG);
    } else {
        glDisable(GL_FOG);
    }
}

void toggleMidi() {
    toggle(Game.midiOn);
    if (Game.midiOn) {
        if (!Game.musicPlaying && Game.screen == Screen::Level) startMusic();
    } else if (Game.musicPlaying) {
        stopMusic();
    }
}

void togglePause() {
    if (Game.screen == Screen::Level && !Game.menuOpen) toggle(Game.paused);
}

void pressOther(WPARAM key) {
    if (key != VK_SPACE) return;
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
