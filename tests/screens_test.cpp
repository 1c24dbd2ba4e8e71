// What stands on each screen: pictures, head-up display, menu, and in which order it is drawn.
#include <GL/gl.h>

#include <algorithm>
#include <array>

#include "app/keyboard.h"
#include "fakes/play.h"
#include "state/menu.h"

namespace {

using Colour = std::array<double, 4>;
constexpr Colour white = {1, 1, 1, 1}, blue = {0, 0, 1, 1}, grey = {0.5, 0.5, 0.5, 1};

struct Screens : Story {
    Screens() {
        writeGameFiles();
        EXPECT_TRUE(startUp());
    }
};

const GlCalls shade =
    calls(off(GL_DEPTH_TEST), off(GL_CULL_FACE), off(GL_TEXTURE_2D), on(GL_BLEND),
          call("glBlendFunc", GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA), call("glBegin", GL_QUADS),
          call("glColor4f", 0, 0, 0, 0.5), call("glVertex2f", -1, -1), call("glVertex2f", 1, -1),
          call("glVertex2f", 1, 1), call("glVertex2f", -1, 1), call("glEnd"));

GlCalls picture(int colour) {
    return calls(off(GL_DEPTH_TEST), off(GL_CULL_FACE), off(GL_BLEND), off(GL_FOG),
                 off(GL_TEXTURE_2D),
                 call("glDrawPixels", 640, 480, GL_RGB, GL_UNSIGNED_BYTE, colour));
}

// The frame's calls up to its first text.
GlCalls beforeTexts() {
    const auto isText = [](const GlCall& c) {
        return c == call("glBindTexture", GL_TEXTURE_2D, 10);
    };
    return {drawn().begin(), std::find_if(drawn().begin(), drawn().end(), isText) - 1};
}

long timesRead(const std::string& fileName) {
    const Lines read = said("CreateFileA");
    return std::count(read.begin(), read.end(), fileName);
}

// The one text of the frame that begins so.
Text textLike(const std::string& start) {
    for (const Text& text : textsDrawn()) {
        if (text.text.starts_with(start)) { return text; }
    }
    return {"no " + start, 0, 0, 0, {}};
}

} // namespace

TEST_F(Screens, TitleIsItsPicture) {
    Game.paused = 1;
    tick(0.1);
    EXPECT_EQ(drawn(), picture(0x111111) + calls(call("SwapBuffers")));
    EXPECT_FALSE(Game.paused);
    tick(0.1); // read only once
    EXPECT_EQ(timesRead("graphics/title.bmp"), 1);
}

TEST_F(Screens, BestTimesAreShadedTwiceUnderTheMenu) {
    for (const Screen screen : {Screen::BestTimes, Screen::NameEntry}) {
        Game.screen = screen;
        Game.newBestEntry = 0;
        Game.menuOpen = 0;
        tick(0.1);
        EXPECT_EQ(beforeTexts(), picture(0x222222) + shade);
        pressKey(VK_ESCAPE);
        Game.lastKey = 0;
        tick(0.1);
        EXPECT_EQ(count(drawn(), call("glColor4f", 0, 0, 0, 0.5)), 2);
        EXPECT_EQ(textsDrawn().back().text, "Quit");
        EXPECT_FALSE(Game.paused);
        EXPECT_EQ(drawn().back(), call("SwapBuffers"));
    }
    EXPECT_EQ(timesRead("graphics/back.bmp"), 1);
}

TEST_F(Screens, MissingPictureIsReportedOncePerVisit) {
    std::filesystem::rename("graphics", "away");
    ticks(3, 0.1);
    Game.screen = Screen::BestTimes;
    ticks(3, 0.1);
    EXPECT_EQ(boxes(), (Lines{"could not load.bmp title | Error | window",
                              "could not load back.bmp | Error | window"}));
    EXPECT_EQ(beforeTexts(), shade);
    std::filesystem::rename("away", "graphics");
    pressKey(VK_SPACE);
    tick(0.1);
    EXPECT_EQ(count(drawn(), "glDrawPixels"), 1);
}

TEST_F(Screens, MainPageShowsTheSelectedLine) {
    pressKey(VK_ESCAPE);
    const char* lines[] = {"NeW Game", "HIGHSCORE", "Options", "Quit"};
    for (int selected = 1; selected <= 4; ++selected) {
        tick(0.1);
        std::vector<Text> expected;
        for (int i = 1; i <= 4; ++i) {
            expected.push_back(
                {lines[i - 1], 220, 127.0 + 33 * i, 1, i == selected ? white : blue});
        }
        EXPECT_EQ(textsDrawn(), expected);
        EXPECT_EQ(beforeTexts(), picture(0x111111) + shade);
        pressKey(VK_DOWN);
    }
}

TEST_F(Screens, OptionsPageShowsTheOptions) {
    const auto expectLines = [](const Lines& lines, Colour farSight) {
        for (Game.menuItem = 5; Game.menuItem <= 11; ++Game.menuItem) {
            tick(0.1);
            std::vector<Text> expected;
            for (int i = 5; i <= 11; ++i) {
                const Colour unselected = i == MenuItem::FarSight ? farSight : blue;
                expected.push_back({lines[static_cast<std::size_t>(i - 5)], 185,
                                    120.0 + 33 * (i - 5), 1,
                                    i == Game.menuItem ? white : unselected});
            }
            EXPECT_EQ(textsDrawn(), expected) << Game.menuItem;
        }
    };
    pressKey(VK_ESCAPE);
    expectLines({"Statistics: OFF", "Fog: ON", "Far Sight: OFF", "Normal: OFF", "Camera Lag: 6",
                 "MIDI: ON", "Done"},
                grey);
    pressKeys({VK_F2, VK_F3, VK_F5, VK_F4, VK_F6});
    Game.cameraLag = 9;
    expectLines({"Statistics: ON", "Fog: OFF", "Far Sight: ON", "Normal: ON", "Camera Lag: 9",
                 "MIDI: OFF", "Done"},
                blue);
}

TEST_F(Screens, ClockGoesFromGreenToRed) {
    const struct {
        float clock;
        const char* text;
        double green;
    } cases[] = {{52, "45.00", 1}, {45, "45.00", 1}, {22.5F, "22.50", 0.5}, {-2, "0.00", 0}};
    playLevel();
    for (const auto& c : cases) {
        Game.clock = c.clock;
        pressKey(VK_F12);
        tick(0.1);
        pressKey(VK_F12);
        EXPECT_EQ(textLike(c.text), (Text{c.text, 280, 0, 1, {1 - c.green, c.green, 0, 1}}));
    }
    Game.clock = 9.25F;
    marble.setPosition({0, 5801, 0});
    tick(0.25);
    tick(0.5); // it stands where it was at the goal
    EXPECT_EQ(textLike("9.00"), (Text{"9.00", 280, 0, 1, {0.8, 0.2, 0, 1}}));
}

TEST_F(Screens, StatisticsAreAnOption) {
    playLevel();
    Game.fps = 60;
    Game.pps = 12345;
    tick(0.1);
    EXPECT_EQ(textLike("FPS").text, "no FPS");
    pressKey(VK_F2);
    tick(0.1);
    EXPECT_EQ(textLike("FPS"), (Text{"FPS: 60", 0, 0, 13.0 / 33, white}));
    EXPECT_EQ(textLike("PPS"), (Text{"PPS: 12345", 0, 13, 13.0 / 33, white}));
}

TEST_F(Screens, TurboGaugeShrinksToTheRight) {
    playLevel();
    const struct {
        float turbo;
        double red, left;
    } cases[] = {{5, 0, 0.703125}, {2.5F, 0.5, 0.845}, {0.5F, 0.9, 0.9585}};
    for (const auto& c : cases) {
        Game.turbo = c.turbo;
        tick(0.01);
        EXPECT_EQ(textLike("Turbo"), (Text{"Turbo", 475, 460, 0.5, white}));
        const GlCalls bar = from(drawn(), call("glColor3f", c.red, 1 - c.red, 0));
        ASSERT_GE(bar.size(), 7U) << c.turbo;
        EXPECT_EQ(
            GlCalls(bar.begin() + 1, bar.begin() + 7),
            (calls(call("glBegin", GL_QUADS), call("glVertex2f", c.left, -0.9),
                   call("glVertex2f", 0.986875, -0.9), call("glVertex2f", 0.986875, -0.986875),
                   call("glVertex2f", c.left, -0.986875), call("glEnd"))));
    }
    const GlCalls state = calls(off(GL_CULL_FACE), off(GL_TEXTURE_2D), off(GL_BLEND), off(GL_FOG),
                                off(GL_DEPTH_TEST));
    const GlCalls before = upTo(drawn(), call("glColor3f", 1, 1, 1));
    EXPECT_EQ(GlCalls(before.end() - 5, before.end()), state);
    Game.turbo = 0;
    tick(0.01);
    EXPECT_EQ(only(drawn(), {"glColor3f"}), (calls(call("glColor3f", 1, 1, 1)))); // the frame
}

TEST_F(Screens, BannerOfALevelShrinksAway) {
    writeGameFiles(std::vector<std::string>(12, levelText({})));
    startAfresh();
    ASSERT_TRUE(startUp());
    startGame();
    for (int n = 1; n < 12; ++n) {
        pressKey(VK_F1);
    }
    double width = 10;
    for (const char c : std::string("Level1")) {
        width += testGlyphWidth(c);
    }
    double scale = 3;
    for (int frame = 0; frame < 3; ++frame) {
        tick(0.125);
        EXPECT_EQ(textLike("Level"),
                  (Text{"Level 12", 320 - width * scale / 2, 205, scale, white}));
        scale *= 0.5;
    }
    pressKey(VK_F12); // paused, it stands still
    ticks(5, 0.125);
    EXPECT_NEAR(textLike("Level").scale, 0.375, 1e-4);
    pressKey(VK_F12);
    ticks(2, 0.125);
    EXPECT_NEAR(textLike("Level").scale, 0.1875, 1e-4);
    tick(0.125);
    EXPECT_EQ(textLike("Level").text, "no Level");
}

TEST_F(Screens, LevelIsDrawnFromTheGroundToTheMenu) {
    playLevel();
    Game.penaltyPending = 1;
    pressKey(VK_ESCAPE);
    tick(0.1);
    Lines texts;
    for (const Text& text : textsDrawn()) {
        texts.push_back(text.text);
    }
    EXPECT_EQ(texts, (Lines{"Turbo", "45.00", "Level 1", "-5", "NeW Game", "HIGHSCORE", "Options",
                            "Quit"}));
    const GlCalls ground = upTo(drawn(), call("glFlush"));
    EXPECT_GT(count(ground, "glBegin"), 0);
    EXPECT_EQ(count(ground, call("glBegin", GL_TRIANGLES)), count(ground, "glBegin"));
    const GlCalls disc =
        upTo(from(drawn(), call("glFlush")), call("glBindTexture", GL_TEXTURE_2D, 10));
    EXPECT_EQ(count(disc, "glBegin"), 48);
    EXPECT_EQ(Game.framesThisSecond, 1);
}

TEST_F(Screens, SkyHasTheColourOfTheFog) {
    playLevel();
    level.fogColourCode = 0xFF8040;
    tick(0.1);
    EXPECT_EQ(from(drawn(), call("SwapBuffers")),
              (calls(call("SwapBuffers"), call("glClearColor", 1, 128 / 255.0, 64 / 255.0, 0),
                     call("glClear", 0x4100))));
    pressKey(VK_F5);
    tick(0.1);
    EXPECT_EQ(
        from(drawn(), call("SwapBuffers")),
        (calls(call("SwapBuffers"), call("glClearColor", 0, 0, 0, 0), call("glClear", 0x4100))));
}
