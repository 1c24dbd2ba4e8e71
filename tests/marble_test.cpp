// A tick's share of the world: keys, turbo, the rolling marble, and what becomes of it.
#include "fakes/play.h"
#include "sim/camera.h"

using MarbleRolls = Story;

namespace {

void put(float x, float y) {
    marble.setPosition(Vector3(x, y, level.heightAt(x, y)));
}

// The marble was put back: still, held for a second, with a penalty to come.
void expectReset(float x, float y) {
    expectVector(marble.getPosition(), x, y, level.heightAt(x, y), 1e-3);
    EXPECT_EQ(marble.velocity.length(), 0);
    EXPECT_TRUE(Game.holdTime == 1 && Game.penaltyPending);
}

} // namespace

TEST_F(MarbleRolls, AsItsFormulasSay) {
    playLevel({{150, -5500, 60, 150}, {-200, -5250, 90, -80}});
    hold(VK_UP);
    ticks(40, 0.02);
    expectVector(marble.getPosition(), 21.34476, -5561.30019, 39.85691, 0.02);
    expectVector(marble.velocity, 0.36961, 2.52409, -0.41448, 1e-3);
    hold(VK_RIGHT);
    hold(VK_SHIFT);
    ticks(30, 0.02);
    expectVector(marble.getPosition(), 312.09670, -5143.64961, 9.15729, 0.05);
    expectVector(marble.velocity, 3.57413, 3.89629, 0.18902, 1e-3);
    EXPECT_NEAR(Game.turbo, 4.4, 1e-4);
    machine.keysHeld = {VK_LEFT, VK_DOWN};
    ticks(20, 0.02);
    expectVector(marble.getPosition(), 445.31596, -4995.63692, 5.02455, 0.05);
    expectVector(marble.velocity, 0.59145, 0.71430, 0.01199, 1e-3);
    expectVector(cameraPosition, 370.39673, -5484.98587, -343.82884, 0.05);
    expectVector({cameraAngleX, cameraAngleY, cameraAngleZ}, -0.98343, -0.28755, -0.28755, 1e-4);
    EXPECT_NEAR(Game.clock, 43.2, 1e-3);
}

TEST_F(MarbleRolls, WhereTheArrowsPoint) {
    const struct {
        double x, y;
        std::set<int> keys;
    } cases[] = {{0, 0, {}},
                 {0, 0.04, {VK_UP}},
                 {0, -0.04, {VK_DOWN}},
                 {-0.04, 0, {VK_LEFT}},
                 {0.04, 0, {VK_RIGHT}},
                 {0, 0.065, {VK_UP, VK_SHIFT}},
                 {0, 0, {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN}}};
    playLevel();
    for (const auto& c : cases) {
        machine.keysHeld = c.keys;
        marble.setVelocity({0, 0, 0});
        put(0, 0);
        tick(0); // a tick of no time does no harm
        tick(0.01);
        expectVector(marble.velocity, c.x, c.y, 0, 1e-6);
        expectVector(marble.getPosition(), c.x * 2.1, c.y * 2.1, 0, 1e-5);
    }
}

TEST_F(MarbleRolls, NoFasterThanItsPower) {
    playLevel();
    hold(VK_UP);
    ticks(100, 0.05);
    EXPECT_NEAR(marble.velocity.length(), 4.0, 1e-5);
    hold(VK_SHIFT);
    ticks(60, 0.05);
    EXPECT_NEAR(marble.velocity.length(), 6.5, 1e-5);
    release(VK_SHIFT);
    tick(0.05);
    EXPECT_NEAR(marble.velocity.length(), 4.0, 1e-5);
}

TEST_F(MarbleRolls, OnlyWhileTheTimeRuns) {
    const struct {
        float clock;
        float holdTime;
        bool moves;
    } cases[] = {{52, 0, false},      {45.25F, 0, false}, {45.125F, 0, true}, {0.125F, 0, true},
                 {0.0625F, 0, false}, {20, 0.125F, true}, {20, 0.25F, false}};
    playLevel();
    machine.keysHeld = {VK_UP, VK_SHIFT};
    for (const auto& c : cases) {
        put(0, 0);
        Game.clock = c.clock;
        Game.holdTime = c.holdTime;
        const float turbo = Game.turbo;
        tick(0.125);
        EXPECT_EQ(marble.getPosition().y > 0, c.moves) << c.clock << ' ' << c.holdTime;
        EXPECT_EQ(Game.turbo, c.moves ? turbo - 0.125F : turbo);
        EXPECT_EQ(marble.getPower(), 65);
    }
}

TEST_F(MarbleRolls, WithTurboUntilItIsSpent) {
    playLevel();
    hold(VK_SHIFT);
    Game.turbo = 0.01F;
    tick(0.1);
    EXPECT_EQ(marble.getPower(), 65);
    EXPECT_LT(Game.turbo, 0);
    tick(0.1);
    EXPECT_EQ(marble.getPower(), 40);
    EXPECT_EQ(Game.turbo, 0);
}

TEST_F(MarbleRolls, BackToAClearSpotWhenAHoleCatchesIt) {
    playLevel({{100, 0, 40, 100}, {0, -5640, 50, 100}});
    put(100, 65);
    tick(0.001);
    EXPECT_EQ(Game.penaltyPending, 0);
    Game.clock = -1;
    put(100, 10); // four widths back is y = -150, and the hole nearer than 250 down to -210
    marble.setVelocity({1, 1, 0});
    tick(0.001);
    expectReset(0, -240);
    EXPECT_EQ(Game.clock, 0);

    hold(VK_UP);
    Game.clock = 30;
    ticks(9, 0.1); // still held
    EXPECT_EQ(marble.getPosition().y, -240);
    ticks(2, 0.1);
    EXPECT_GT(marble.getPosition().y, -240);
    put(10, -5605); // the search goes on to the back of the course
    tick(0.001);
    EXPECT_NEAR(marble.getPosition().y, -5895, 1);
}

TEST_F(MarbleRolls, NowhereWhenThereIsNoClearSpot) {
    playLevel({{0, -5900, 50, 100}});
    put(10, -5850);
    marble.setVelocity({1, 2, 0});
    Game.holdTime = 0.5F;
    for (int n = 0; n < 3; ++n) {
        tick(0.1);
        expectVector(marble.getPosition(), 10, -5850, level.heightAt(10, -5850), 1e-3);
        EXPECT_EQ(marble.velocity.y, 2);
        EXPECT_EQ(Game.holdTime, 1);
    }
    Game.clock = -0.2F; // the level cannot time out in there
    Game.penaltyPending = 0;
    tick(0.1);
    EXPECT_TRUE(Game.clock == 0 && Game.penaltyPending);
}

TEST_F(MarbleRolls, BackOntoTheCourseFromItsEdges) {
    const struct {
        float x, y;
        bool reset;
        float backX, backY;
    } cases[] = {{720, 100, false, 720, 100},     {-750, 100, false, -750, 100},
                 {720.5F, 100, true, 0, 100},     {-750.5F, 100, true, 0, 100},
                 {300, -6000, false, 300, -6000}, {300, -6000.5F, true, 300, -5700},
                 {800, -6100, true, 0, -5700}};
    playLevel({{0, 5000, 100, 10}});
    for (const auto& c : cases) {
        Game.clock = -0.5F;
        Game.holdTime = 0;
        Game.penaltyPending = 0;
        put(c.x, c.y);
        marble.setVelocity({0, 0, 0});
        tick(0.001);
        EXPECT_EQ(Game.clock == 0, c.reset) << c.x << ' ' << c.y;
        EXPECT_EQ(Game.penaltyPending, c.reset) << c.x << ' ' << c.y;
        EXPECT_TRUE(marble.getPosition().x == c.backX && marble.getPosition().y == c.backY);
        if (c.reset) { expectReset(c.backX, c.backY); }
    }
}

TEST_F(MarbleRolls, OverTheGoalLine) {
    playLevel();
    put(0, 5800);
    tick(0.25);
    EXPECT_EQ(Game.levelDone, 0);
    put(0, 5800.5F);
    machine.lines.clear();
    tick(0.25);
    EXPECT_TRUE(Game.levelDone && Game.levelTimes[0] == 0.5F && Game.levelEndAt == 43.5F);
    EXPECT_EQ(sounds(), Lines{"sounds/allright.wav"});
    hold(VK_UP);
    tick(0.25);
    EXPECT_TRUE(marble.getPosition().y == 5800.5F && Game.levelTimes[0] == 0.5F);
}
