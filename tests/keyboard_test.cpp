// Every key, with the menu closed and on each of its lines.
#include "app/keyboard.h"
#include "fakes/play.h"
#include "state/menu.h"

namespace {

const std::string menuSound = "sounds/menu.wav";

struct Keyboard : Started<2> {
    static void openMenuAt(int item) {
        Game.menuOpen = 1;
        Game.menuItem = item;
        machine.lines.clear();
    }
};

} // namespace

TEST_F(Keyboard, MovesThroughTheMenu) {
    const struct {
        int key;
        bool fog;
        int to[11]; // from line 1, 2, 3, ...
    } cases[] = {{VK_UP, false, {4, 1, 2, 3, 11, 5, 6, 7, 8, 9, 10}},
                 {VK_UP, true, {4, 1, 2, 3, 11, 5, 6, 6, 8, 9, 10}},
                 {VK_DOWN, false, {2, 3, 4, 1, 6, 7, 8, 9, 10, 11, 5}},
                 {VK_DOWN, true, {2, 3, 4, 1, 6, 8, 8, 9, 10, 11, 5}}};
    for (const auto& c : cases) {
        for (int item = 1; item <= 11; ++item) {
            openMenuAt(item);
            Game.fogOn = c.fog;
            pressKey(c.key);
            EXPECT_EQ(Game.menuItem, c.to[item - 1]) << c.key << ' ' << item;
            EXPECT_EQ(sounds(), Lines{menuSound});
        }
    }
}

TEST_F(Keyboard, EscapeOpensTheMenuAndGoesBackInIt) {
    Game.menuItem = MenuItem::Quit;
    pressKey(VK_ESCAPE);
    EXPECT_TRUE(Game.menuOpen && Game.paused && Game.menuItem == 1);
    for (int item = 1; item <= 11; ++item) {
        openMenuAt(item);
        Game.paused = 1;
        pressKey(VK_ESCAPE);
        EXPECT_EQ(sounds(), Lines{menuSound});
        EXPECT_TRUE(item > 4 ? Game.menuOpen && Game.menuItem == 1 : !Game.menuOpen && !Game.paused)
            << item;
    }
}

TEST_F(Keyboard, EnterRightAndLeftChooseALine) {
    using Flag = std::uint8_t GameRecord::*;
    const struct {
        int item;
        int next;  // the selected line afterwards
        Flag flag; // that it toggles
    } cases[] = {{MenuItem::Options, 5, nullptr},
                 {MenuItem::Statistics, 5, &GameRecord::showStatistics},
                 {MenuItem::Fog, 6, &GameRecord::fogOn},
                 {MenuItem::FarSight, 7, &GameRecord::farSight},
                 {MenuItem::Normal, 8, &GameRecord::normalMode},
                 {MenuItem::Midi, 10, &GameRecord::midiOn},
                 {MenuItem::Done, 3, nullptr}};
    for (const auto& c : cases) {
        for (const int key : {VK_RETURN, VK_RIGHT, VK_LEFT}) {
            openMenuAt(c.item);
            Game.fogOn = 0;
            const auto flag = c.flag != nullptr ? c.flag : &GameRecord::goPlayed;
            const int before = Game.*flag;
            pressKey(key);
            EXPECT_EQ(Game.menuItem, c.next) << c.item;
            EXPECT_EQ(sounds(), Lines(key == VK_LEFT ? 2 : 1, menuSound)) << c.item << ' ' << key;
            EXPECT_EQ(Game.*flag != before, c.flag != nullptr) << c.item;
        }
    }
}

TEST_F(Keyboard, CameraLagWrapsAround) {
    openMenuAt(MenuItem::CameraLag);
    const struct {
        int key;
        float from, to;
    } cases[] = {{VK_RETURN, 6, 7}, {VK_RIGHT, 8, 9}, {VK_RETURN, 9, 0},
                 {VK_LEFT, 6, 5},   {VK_LEFT, 1, 0},  {VK_LEFT, 0, 9}};
    for (const auto& c : cases) {
        Game.cameraLag = c.from;
        pressKey(c.key);
        EXPECT_EQ(Game.cameraLag, c.to) << c.key;
    }
    EXPECT_EQ(sounds(), Lines(6, menuSound));
}

TEST_F(Keyboard, MostKeysDoNothingWithTheMenuClosed) {
    for (const int key : {VK_RETURN, VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_F1, VK_F12, 65, 999}) {
        pressKey(key);
        EXPECT_TRUE(!Game.menuOpen && !Game.paused && Game.menuItem == 1) << key;
        EXPECT_TRUE(Game.screen == Screen::Title && Game.levelNumber == -1) << key;
    }
    EXPECT_EQ(sounds(), Lines{});
    EXPECT_EQ(linesOf("PostMessageA"), Lines{"256 13"}); // Right becomes Enter, always
}

TEST_F(Keyboard, FarSightNeedsFogOff) {
    machine.drawn.clear();
    pressKey(VK_F4);
    EXPECT_EQ(Game.farSight, 0); // not in fog
    pressKeys({VK_F5, VK_F4});
    EXPECT_TRUE(!Game.fogOn && Game.farSight);
    pressKey(VK_F5);
    EXPECT_TRUE(Game.fogOn && !Game.farSight);
    EXPECT_EQ(drawn(), (GlCalls{{"glDisable", 0x0B60}, {"glEnable", 0x0B60}})); // GL_FOG, at once
}

TEST_F(Keyboard, PausesAndSkipsOnlyDuringALevel) {
    startGame();
    for (const int paused : {1, 0, 1}) {
        pressKey(VK_F12);
        EXPECT_EQ(Game.paused, paused);
    }
    pressKeys({VK_ESCAPE, VK_F12}); // not over the menu
    EXPECT_EQ(Game.paused, 1);
    pressKey(VK_F1);
    EXPECT_EQ(Game.levelNumber, 1);
    pressKeys({VK_ESCAPE, VK_F1});
    EXPECT_TRUE(!Game.paused && Game.levelNumber == 2);
    pressKey(VK_SPACE);
    EXPECT_EQ(Game.screen, Screen::Level);
}

TEST_F(Keyboard, HighscoreAbandonsTheRun) {
    startGame();
    Game.levelTimes[0] = 20;
    Game.newBestEntry = 3;
    pressKeys({VK_ESCAPE, VK_DOWN, VK_RETURN});
    EXPECT_TRUE(Game.screen == Screen::BestTimes && !Game.menuOpen && Game.newBestEntry == -1);
    EXPECT_EQ(Game.levelTimes[0], 45);
    tick(1);
    EXPECT_TRUE(Game.stopped && Game.levelDone);
}
