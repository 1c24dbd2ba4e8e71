// Levels and their clocks, the penalty, and the way from one level to the next.
#include "data/best_times.h"
#include "fakes/play.h"
#include "sim/camera.h"

namespace {

struct LevelRun : Story {
    LevelRun() {
        writeGameFiles({levelText({{0, -5800, 40, -30}}), levelText({})});
        EXPECT_TRUE(startUp());
        startGame();
        machine.lines.clear();
    }

    static void putAtGoal() { marble.setPosition({0, 5800.5F, 0}); }
};

using PenaltyLabel = Story;

// The "-5" that moves from the marble to the clock.
std::vector<Text> labels() {
    std::vector<Text> found = textsDrawn();
    std::erase_if(found, [](const Text& text) { return text.text != "-5"; });
    return found;
}

} // namespace

TEST_F(LevelRun, BeginsWithALongCountDown) {
    EXPECT_TRUE(Game.screen == Screen::Level && Game.levelNumber == 1);
    EXPECT_EQ(Game.clock, 52);
    expectVector(marble.getPosition(), 0, -5800, -30);
    expectVector(cameraPosition, 0, -8800, -6030);
    machine.keysHeld = {VK_UP};
    ticks(55, 0.125);
    EXPECT_EQ(Game.clock, 45.125F);
    EXPECT_EQ(sounds(), Lines{});
    ticks(30, 0.125);
    EXPECT_EQ(sounds(), Lines{"sounds/go.wav"});
}

TEST_F(LevelRun, LeadsToTheNextLevelASecondAfterTheGoal) {
    Game.clock = 0.75F;
    Game.goPlayed = 1;
    Game.turbo = 1;
    Game.holdTime = 0.5F;
    marble.setPosition({0, 5800, 0}); // on the line, not beyond it
    tick(0.25);
    EXPECT_EQ(Game.levelDone, 0);
    putAtGoal();
    tick(0.25);
    EXPECT_EQ(Game.levelTimes[0], 44.75F);
    machine.keysHeld = {VK_UP};
    ticks(4, 0.25);
    EXPECT_EQ(Game.levelNumber, 1);
    EXPECT_TRUE(Game.levelTimes[0] == 44.75F && marble.getPosition().y == 5800.5F);
    tick(0.125);
    EXPECT_EQ(Game.levelNumber, 2);
    EXPECT_TRUE(!Game.levelDone && Game.clock == 46.5F && Game.turbo == 5 && Game.holdTime == 0);
    expectVector(marble.getPosition(), 0, -5800, 0);
    EXPECT_EQ(marble.velocity.length(), 0);
    ticks(12, 0.125);
    EXPECT_EQ(sounds(), (Lines{"sounds/allright.wav", "sounds/go.wav"}));
}

TEST_F(LevelRun, EndsFourSecondsAfterTheTimeIsUp) {
    bestTimes.slots[0].time = 90;
    Game.goPlayed = 1;
    Game.clock = 0.25F;
    tick(0.25);
    EXPECT_EQ(sounds(), Lines{});
    ticks(16, 0.25);
    EXPECT_EQ(sounds(), Lines{"sounds/timeup.wav"});
    EXPECT_TRUE(Game.clock == -4 && Game.levelNumber == 1);
    tick(0.25);
    EXPECT_TRUE(Game.levelNumber == 3 && Game.stopped && Game.levelDone);
    EXPECT_EQ(Game.screen, Screen::NameEntry); // 90 seconds are the best of the table
    EXPECT_EQ(Game.newBestEntry, 1);           // after the runs that had them before
    send(WM_GAME_START_LEVEL);                 // one message too many adds no second entry
    EXPECT_TRUE(Game.screen == Screen::BestTimes && Game.newBestEntry == -1);
    EXPECT_EQ(bestTimes.slots[2].time, 110);

    startGame(); // the next run has its signals again
    tick(0.25);
    machine.lines.clear();
    Game.clock = 0.25F;
    ticks(2, 0.25);
    EXPECT_EQ(sounds(), (Lines{"sounds/go.wav", "sounds/timeup.wav"}));
}

TEST_F(LevelRun, SkipsALevelWithF1) {
    passTime(3); // time spent loading does not count
    pressKey(VK_F1);
    tick(0.125);
    EXPECT_TRUE(Game.levelNumber == 2 && Game.levelTimes[0] == 45 && Game.clock == 46.375F);
    Game.clock = 20;
    putAtGoal();
    tick(0.5);
    pressKey(VK_F1); // sooner than the second after the goal
    EXPECT_EQ(Game.screen, Screen::NameEntry);
    EXPECT_EQ(Game.levelTimes[1], 25.5F);
    tick(0.1);
    EXPECT_EQ(Game.nameCursor, 0); // the F1 is no letter of the name
    startGame();
    EXPECT_EQ(Game.levelTimes[1], 45); // no level of the next run is finished
}

TEST_F(LevelRun, WaitsForTheMenuToClose) {
    const float clock = Game.clock;
    pressKey(VK_ESCAPE);
    send(WM_GAME_START_LEVEL);
    ticks(10, 0.25);
    EXPECT_TRUE(Game.levelNumber == 1 && Game.clock == clock);
    send(WM_KILLFOCUS); // the clock runs again once the window has the focus, menu or not
    send(WM_SETFOCUS);
    Game.clock = -3.9F;
    ticks(3, 0.25);
    EXPECT_EQ(Game.screen, Screen::Level);
    pressKey(VK_ESCAPE);
    tick(0.25);
    EXPECT_EQ(Game.screen, Screen::NameEntry);
}

TEST_F(LevelRun, EndsTheProgramWhenALevelCannotBeLoaded) {
    writeFile("maps/2.map", "marblecolor= 0x00FF00 holecount= 1 .data 0 0 9 9 .end oops");
    machine.keysHeld = {VK_SHIFT};
    ticks(8, 1); // the marble rolls
    machine.lines.clear();
    pressKey(VK_F1);
    EXPECT_EQ(boxes(), (Lines{"maps/2.map contains a unknown tokenoops | error | nobody",
                              "Unable to initialize map | error | window"}));
    EXPECT_TRUE(machine.quitPosted && machine.quitCode == 0);
    EXPECT_TRUE(Game.screen == Screen::Level && Game.levelNumber == 2 && Game.turbo == 5);
    EXPECT_TRUE(Game.clock == 46.5F && marble.colour[1] == 255 && level.holeCount == 1);
    expectVector(marble.getPosition(), 0, -5800, level.heightAt(0, -5800));
    tick(0.25); // what is left to draw: everything but the ground
    EXPECT_EQ(count(GlCall("glBegin", 4)), 2 * 16);
    EXPECT_EQ(Game.clock, 46.25F);
    EXPECT_EQ(sounds(), Lines{});
}

TEST_F(PenaltyLabel, GrowsFromTheMarbleToTheClockAndTakesFourSeconds) {
    constexpr std::array<double, 4> red = {1, 0, 0, 1};
    playLevel();
    Game.cameraLag = 0; // it settles
    Game.holdTime = 10;
    marble.setPosition({0, 0, 0});
    ticks(3, 0.5);
    pressKey(VK_F12);
    Game.penaltyPending = 1;
    Game.clock = 3;
    const Text expected[] = {{"-5", 326.667, 293.551, 0.3, red}, {"-5", 320, 251.615, 0.4, red}};
    for (const Text& text : expected) {
        tick(0.1);
        EXPECT_EQ(labels(), std::vector<Text>{text});
    }
    tick(0.1);
    EXPECT_EQ(Game.clock, 3);
    tick(0.5);
    EXPECT_EQ(Game.clock, -1);
    EXPECT_FLOAT_EQ(Game.penaltyFade, 0.7F);
    tick(0.25);
    EXPECT_EQ(labels().size(), 0U);
    EXPECT_EQ(Game.clock, -1);
}
