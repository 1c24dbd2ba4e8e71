// The start of the program, every way in which it can fail, the window's messages, the end.
#include <algorithm>

#include "data/best_times.h"
#include "data/font.h"
#include "fakes/play.h"
#include "sim/camera.h"

namespace {

struct Start : Story {
    Start() { writeGameFiles(); }
};

// Runs the program until its queue is empty for the third time.
int runBriefly() {
    return runProgram([idle = 0]() mutable {
        if (++idle == 3) { PostQuitMessage(5); }
    });
}

using Window = Story;

} // namespace

TEST_F(Start, ShowsTheWindowAndDrawsWhileNothingElseIsToDo) {
    EXPECT_EQ(runBriefly(), 5);
    EXPECT_EQ(linesOf("CreateWindowExA"),
              Lines{"0 Glorbix Glorbix 2214592512 -2147483648 -2147483648 640 480"});
    EXPECT_EQ(linesOf("SetTimer"), Lines{"1 1000"});
    EXPECT_EQ(linesOf("ShowWindow"), Lines{"3"}); // as the entry was told
    EXPECT_EQ(linesOf("ShowCursor"), (Lines{"0", "1"}));
    EXPECT_EQ(linesOf("PostMessageA"), Lines(2, "1025 0"));
    EXPECT_EQ(count("SwapBuffers"), 3); // one to paint the new window
    EXPECT_EQ(count(GlCall("glClearDepth", 0)), 1);
}

TEST_F(Start, GoesOnWhateverTheDisplaySays) {
    const std::string caption = " | Initialization Error | focus, stop";
    const Lines found = {"16 640 480 7", "restore"};
    const Lines bySize = {found[0], "16 640 480 1835008", "restore"};
    const DEVMODEA right = modeOf(16, 640, 480);
    const struct {
        std::vector<DEVMODEA> modes;
        std::deque<LONG> results;
        Lines changes;
        std::string message;
    } cases[] = {
        {{modeOf(16, 640, 400), modeOf(16, 720, 480), modeOf(32, 640, 480)},
         {},
         {"restore"},
         "640x480x65536 (16-bit color/Hicolor) is not supported" + caption},
        {{modeOf(16, 320, 240), right}, {0}, found, ""},
        {{right}, {-1, 0}, bySize, ""},
        {{right},
         {-2, 1},
         bySize,
         "You must change your desktop to 16bit color (Hicolor) and then restart | Win95/non-16bit "
         "color Init Error | focus, stop"},
        {{right}, {1, -2}, bySize, "The video mode 640x480x65536 is not supported" + caption},
        {{right}, {-1, -1}, bySize, "Hardware failed to change to 640x480x65536" + caption}};
    for (const auto& c : cases) {
        restartAll();
        machine.modes = c.modes;
        machine.switchResults = c.results;
        EXPECT_EQ(runBriefly(), 5);
        EXPECT_EQ(boxes(), c.message.empty() ? Lines{} : Lines{c.message});
        EXPECT_EQ(linesOf("ChangeDisplaySettingsA"), c.changes);
        EXPECT_EQ(linesOf("CreateWindowExA").size(), 1U);
    }
}

TEST_F(Start, WithoutAWindowRestoresTheDisplay) {
    for (const char* function : {"RegisterClassA", "CreateWindowExA"}) {
        restartAll();
        failNext(function);
        EXPECT_EQ(runBriefly(), 0) << function;
        EXPECT_EQ(linesOf("ChangeDisplaySettingsA").back(), "restore");
        EXPECT_TRUE(linesOf("ShowWindow").empty() && boxes().empty());
    }
}

TEST_F(Start, WithoutAPixelFormatStartsAndEnds) {
    const std::string failed = " failed GetLastError | nobody, info";
    const struct {
        Lines failing;
        std::string message;
    } cases[] = {{{"ChoosePixelFormat"}, "in other words | ChoosePixelFormat" + failed},
                 {{"ChoosePixelFormat", "FormatMessageA"}, " | ChoosePixelFormat" + failed},
                 {{"SetPixelFormat"}, "in other words | SetPixelFormat" + failed},
                 {{}, "Needs palette | Error | nobody"}};
    for (const auto& c : cases) {
        restartAll();
        std::for_each(c.failing.begin(), c.failing.end(), [](auto& name) { failNext(name); });
        machine.formatNeedsPalette = c.failing.empty();
        EXPECT_EQ(runProgram([] {}), 0);
        EXPECT_EQ(boxes(), Lines{c.message});
        EXPECT_TRUE(font.loaded);
        EXPECT_EQ(linesOf("ShowWindow").size(), 1U);
    }
}

TEST_F(Start, WithoutItsDataEnds) {
    const struct {
        const char* missing;
        Lines messages;
        int best; // time of the best run, if the table was read by then
    } cases[] = {{"maps/maplist.dat", {"could not initialize map data | Error | window"}, 0},
                 {"graphics/font/font_3.bmp",
                  {"graphics/font/font_3.bmp | error | nobody",
                   "could not initialize fonts | Error | nobody"},
                  100},
                 {"graphics/font/font.dat", {"could not initialize fonts | Error | nobody"}, 100}};
    for (const auto& c : cases) {
        restartAll();
        writeGameFiles();
        std::filesystem::remove(c.missing);
        EXPECT_EQ(runProgram([] {}), 0);
        Lines messages = c.messages;
        messages.push_back("initialization failed | Error | window");
        EXPECT_EQ(boxes(), messages);
        EXPECT_EQ(static_cast<int>(bestTimes.slots[0].time), c.best);
        EXPECT_EQ(linesOf("SetTimer").size(), 1U);
    }
}

TEST_F(Window, LeavesOtherMessagesToTheSystem) {
    EXPECT_EQ(send(WM_KEYDOWN, 65), 0);
    EXPECT_EQ(send(WM_USER + 3, 5, 6), 77);
    EXPECT_EQ(linesOf("DefWindowProcA"), Lines{"1 1027 5 6"});
}

TEST_F(Window, MeasuresTheTimeAndPauses) {
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
    EXPECT_EQ(count("SwapBuffers"), 1);
    send(WM_SETFOCUS); // it has the focus already
    EXPECT_EQ(Game.paused, 1);
    pressKey(VK_F12);
    send(WM_KILLFOCUS);
    EXPECT_TRUE(Game.paused && !Game.hasFocus);
    send(WM_SETFOCUS);
    tick(0.25); // no long step follows a pause
    EXPECT_EQ(Game.clock, 44.25F);
}

TEST_F(Window, ReleasesEverythingAtTheEnd) {
    playLevel();
    bestTimes.slots[0].time = 1;
    machine.lines.clear();
    send(WM_CLOSE);
    EXPECT_EQ(machine.lines, (Lines{"wglDeleteContext", "ReleaseDC", "MCI close 1",
                                    "PostQuitMessage 0", "MCI close stale 1"}));
    EXPECT_TRUE(Game.stopped && !Game.hasFocus);
    EXPECT_TRUE(readFile("highScore.dat").starts_with("100 ")); // nothing is saved

    pressKeys({VK_ESCAPE, VK_UP, VK_RETURN}); // "Quit" saves
    EXPECT_TRUE(readFile("highScore.dat").starts_with("1 "));
    EXPECT_EQ(linesOf("PostQuitMessage").size(), 2U);
}
