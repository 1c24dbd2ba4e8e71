// The start of the program: display, window, OpenGL, data; and every way in which it can fail.
#include <GL/gl.h>

#include "data/best_times.h"
#include "data/font.h"
#include "fakes/play.h"

namespace {

struct Start : Story {
    Start() { writeGameFiles(); }
};

// The program runs until its queue is empty for the third time.
int runBriefly() {
    return runProgram([idle = 0]() mutable {
        if (++idle == 3) { PostQuitMessage(5); }
    });
}

} // namespace

// Of the three times that the queue is empty, two find a tick posted and one the end.
TEST_F(Start, TakesEveryStepInOrder) {
    EXPECT_EQ(runBriefly(), 5);
    std::string steps;
    for (const std::string& line : machine.lines) {
        if (!line.starts_with("CreateFileA graphics/font/font_")) { steps += line + "; "; }
    }
    EXPECT_EQ(steps,
              "ChangeDisplaySettingsA 16 640 480 7; LoadIconA OpenGL Demo; RegisterClassA Glorbix; "
              "CreateWindowExA 0 Glorbix Glorbix 2214592512 -2147483648 -2147483648 640 480; "
              "GetDC window; ChoosePixelFormat; SetPixelFormat 3; wglCreateContext; "
              "wglMakeCurrent; SetTimer window 1 1000; ShowWindow window 5; UpdateWindow window; "
              "BeginPaint window; CreateFileA graphics/title.bmp; EndPaint window; ShowCursor 0; "
              "PostMessageA 1025 0; PostMessageA 1025 0; PostQuitMessage 5; "
              "ChangeDisplaySettingsA restore; ShowCursor 1; ");
    EXPECT_EQ(machine.cursorCount, 0);
    EXPECT_EQ(Game.window, theWindow);
    EXPECT_EQ(machine.windowClass.style, 0U);
    EXPECT_EQ(machine.windowClass.hbrBackground, reinterpret_cast<HBRUSH>(UINT_PTR{6}));
    EXPECT_STREQ(machine.windowClass.lpszMenuName, "Glorbix");
    EXPECT_EQ(
        count(from(drawn(), call("glClearDepth", 0)), call("glHint", GL_FOG_HINT, GL_FASTEST)), 1);
}

TEST_F(Start, GoesOnWhateverTheDisplaySays) {
    const std::string unsupported = "640x480x65536 (16-bit color/Hicolor) is not supported";
    const std::string found = "16 640 480 7", bySize = "16 640 480 1835008", restore = "restore";
    const DEVMODEA tooSmall = {sizeof(DEVMODEA), 7, 16, 320, 240};
    const DEVMODEA tooLow = {sizeof(DEVMODEA), 7, 16, 640, 400};
    const DEVMODEA tooWide = {sizeof(DEVMODEA), 7, 16, 720, 480};
    const DEVMODEA tooDeep = {sizeof(DEVMODEA), 7, 32, 640, 480};
    const DEVMODEA right = {sizeof(DEVMODEA), 7, 16, 640, 480};
    const struct {
        std::vector<DEVMODEA> modes;
        std::deque<LONG> results;
        Lines changes;
        std::string message;
    } cases[] = {
        {{}, {}, {restore}, unsupported + " | Initialization Error | focus, stop"},
        {{tooLow, tooWide, tooDeep},
         {},
         {restore},
         unsupported + " | Initialization Error | focus, stop"},
        {{tooSmall, tooSmall, right}, {0}, {found, restore}, ""},
        {{right}, {-1, 0}, {found, bySize, restore}, ""},
        {{right},
         {-2, 1},
         {found, bySize, restore},
         "You must change your desktop to 16bit color (Hicolor) and then restart | Win95/non-16bit "
         "color Init Error | focus, stop"},
        {{right},
         {1, -2},
         {found, bySize, restore},
         "The video mode 640x480x65536 is not supported | Initialization Error | focus, stop"},
        {{right},
         {-1, -1},
         {found, bySize, restore},
         "Hardware failed to change to 640x480x65536 | Initialization Error | focus, stop"},
        {{right}, {-1, -3}, {found, bySize, restore}, ""}};
    for (const auto& c : cases) {
        startAfresh();
        machine.modes = c.modes;
        machine.switchResults = c.results;
        EXPECT_EQ(runBriefly(), 5);
        EXPECT_EQ(boxes(), c.message.empty() ? Lines{} : Lines{c.message});
        EXPECT_EQ(said("ChangeDisplaySettingsA"), c.changes);
        EXPECT_EQ(said("CreateWindowExA").size(), 1U);
    }
}

TEST_F(Start, WithoutAWindowGivesTheDisplayBack) {
    for (const char* function : {"RegisterClassA", "CreateWindowExA"}) {
        startAfresh();
        failNext(function);
        EXPECT_EQ(runBriefly(), 0) << function;
        EXPECT_EQ(said("ChangeDisplaySettingsA").back(), "restore");
        EXPECT_EQ(said({"ShowWindow", "ShowCursor", "MessageBoxA"}), Lines{});
    }
}

TEST_F(Start, WithoutAPixelFormatFinishesAndEnds) {
    const struct {
        void (*spoil)();
        const char* message;
    } cases[] = {{[] { failNext("ChoosePixelFormat"); },
                  "in other words | ChoosePixelFormat failed GetLastError | nobody, info"},
                 {[] { machine.formatNeedsPalette = true; }, "Needs palette | Error | nobody"},
                 {[] { failNext("SetPixelFormat"); },
                  "in other words | SetPixelFormat failed GetLastError | nobody, info"}};
    for (const auto& c : cases) {
        startAfresh();
        c.spoil();
        EXPECT_EQ(runProgram([] {}), 0);
        EXPECT_EQ(boxes(), Lines{c.message});
        EXPECT_TRUE(font.loaded);
        EXPECT_EQ(said({"ShowWindow", "SetTimer"}).size(), 2U);
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
        startAfresh();
        writeGameFiles();
        std::filesystem::remove(c.missing);
        EXPECT_EQ(runProgram([] {}), 0);
        Lines messages = c.messages;
        messages.push_back("initialization failed | Error | window");
        EXPECT_EQ(boxes(), messages);
        EXPECT_EQ(static_cast<int>(bestTimes.slots[0].time), c.best);
        EXPECT_EQ(count(drawn(), "glClearDepth"), 0);
        EXPECT_EQ(said({"SetTimer", "ShowWindow", "ShowCursor"}).size(), 4U);
    }
}
