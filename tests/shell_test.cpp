// The window procedure: messages, focus, and the tick.
#include "data/best_times.h"
#include "fakes/play.h"
#include "sim/camera.h"

using Window = Story;

TEST_F(Window, AnswersItsMessagesAndLeavesTheRest) {
    playLevel();
    for (const UINT message : {WM_SETFOCUS, WM_KILLFOCUS, WM_PAINT, WM_KEYDOWN, WM_TIMER,
                               MM_MCINOTIFY, WM_GAME_TICK, WM_GAME_START_LEVEL, WM_CLOSE}) {
        EXPECT_EQ(send(message), 0) << message;
    }
    EXPECT_EQ(said("DefWindowProcA"), Lines{});
    EXPECT_EQ(send(WM_USER + 3, 5, 6), 77);
    EXPECT_EQ(said("DefWindowProcA"), Lines{"window 1027 5 6"});
}

TEST_F(Window, MeasuresTheTimeOfEveryTick) {
    playLevel();
    tick(0.5);
    EXPECT_EQ(Game.frameTime, 0.5F);
    EXPECT_EQ(Game.clock, 44.5F);
    pressKey(VK_F12);
    const Vector3 before = cameraPosition;
    ticks(4, 3);
    EXPECT_EQ(Game.clock, 44.5F);
    EXPECT_EQ(marble.getPosition().y, -5800);
    EXPECT_EQ(cameraPosition.y, before.y);
    EXPECT_EQ(count(drawn(), "SwapBuffers"), 1);
    pressKey(VK_F12);
    tick(0.25); // no long step follows a pause
    EXPECT_EQ(Game.clock, 44.25F);
}

TEST_F(Window, PausesWithoutTheFocus) {
    playLevel();
    send(WM_KILLFOCUS);
    EXPECT_TRUE(Game.paused && !Game.hasFocus);
    send(WM_SETFOCUS);
    EXPECT_TRUE(!Game.paused && Game.hasFocus);
    pressKey(VK_F12);
    send(WM_SETFOCUS); // it has the focus already
    EXPECT_EQ(Game.paused, 1);
}

TEST_F(Window, LatchesItsStatisticsOnceASecond) {
    playLevel();
    ticks(3, 0.1);
    const int triangles = Game.trianglesThisSecond;
    EXPECT_GT(triangles, 300);
    EXPECT_TRUE(Game.fps == 0 && Game.pps == 0);
    send(WM_TIMER, 1);
    EXPECT_TRUE(Game.fps == 3 && Game.pps == triangles);
    tick(0.1);
    send(WM_TIMER, 1);
    EXPECT_TRUE(Game.fps == 1 && Game.pps < triangles);
}

TEST_F(Window, GivesTheMachineBackWhenItCloses) {
    for (const UINT message : {WM_CLOSE, WM_DESTROY}) {
        startAfresh();
        playLevel();
        bestTimes.slots[0].time = 1;
        machine.lines.clear();
        send(message);
        EXPECT_EQ(machine.lines, (Lines{"wglDeleteContext", "ReleaseDC window", "MCI close 1",
                                        "PostQuitMessage 0"}));
        EXPECT_TRUE(Game.stopped && !Game.hasFocus);
        EXPECT_TRUE(readFile("highScore.dat").starts_with("100 ")); // nothing is saved
    }
    startAfresh();
    send(WM_CLOSE); // nothing was ever made
    EXPECT_EQ(machine.lines, Lines{"PostQuitMessage 0"});
}
