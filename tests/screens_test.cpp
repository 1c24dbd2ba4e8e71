// What each screen shows, and the order of drawing.
#include <GL/gl.h>

#include <algorithm>

#include "data/font.h"
#include "fakes/play.h"
#include "state/menu.h"

namespace {

using Colour = std::array<double, 4>;
constexpr Colour white = {1, 1, 1, 1}, blue = {0, 0, 1, 1}, grey = {0.5, 0.5, 0.5, 1};

struct Screens : Started<1> {
    // A frame of the menu shows these lines, the selected one white.
    static void expectMenu(const Lines& lines, int first, double x, double y, Colour farSight) {
        for (int selected = 0; selected < static_cast<int>(lines.size()); ++selected) {
            Game.menuItem = first + selected;
            tick(0.1);
            std::vector<Text> expected;
            for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
                const Colour colour = first + i == MenuItem::FarSight ? farSight : blue;
                expected.push_back({lines[static_cast<std::size_t>(i)], x, y + 33 * i, 1,
                                    i == selected ? white : colour});
            }
            EXPECT_EQ(textsDrawn(), expected) << Game.menuItem;
            EXPECT_EQ(drawn().back(), GlCall("SwapBuffers"));
        }
    }
};

// The ground triangles of the last frame: all but those of the marble.
std::ptrdiff_t groundTriangles() {
    return count(GlCall("glBegin", GL_TRIANGLES)) - 2 * 16;
}

// Returns the first text of the frame that begins with this.
Text textLike(const std::string& start) {
    for (const Text& text : textsDrawn()) {
        if (text.text.starts_with(start)) { return text; }
    }
    return {"no " + start, 0, 0, 0, {}};
}

} // namespace

TEST_F(Screens, PicturesAreReadOnceAndShadedUnderTheMenu) {
    Game.paused = 1;
    ticks(2, 0.1);
    EXPECT_EQ(only({"glDrawPixels", "glColor4f", "SwapBuffers"}),
              (GlCalls{{"glDrawPixels", 640, 480, 0x111111}, {"SwapBuffers"}}));
    EXPECT_FALSE(Game.paused);
    for (const Screen screen : {Screen::BestTimes, Screen::NameEntry}) {
        Game.screen = screen;
        Game.newBestEntry = 0;
        for (const long shades : {1, 2}) {
            Game.menuOpen = shades == 2;
            Game.paused = 1;
            tick(0.1);
            EXPECT_EQ(count({"glDrawPixels", 640, 480, 0x222222}), 1);
            EXPECT_EQ(count({"glColor4f", 0, 0, 0, 0.5}), shades);
            EXPECT_EQ(textsDrawn().back().text == "Quit", shades == 2);
            EXPECT_FALSE(Game.paused);
        }
    }
    EXPECT_EQ(linesOf("CreateFileA").size(), 2U);
}

TEST_F(Screens, MissingPictureIsReportedOncePerVisit) {
    std::filesystem::rename("graphics", "away");
    ticks(3, 0.1);
    Game.screen = Screen::BestTimes;
    ticks(3, 0.1);
    EXPECT_EQ(boxes(), (Lines{"could not load.bmp title | Error | window",
                              "could not load back.bmp | Error | window"}));
    EXPECT_EQ(count("glDrawPixels"), 0);
    std::filesystem::rename("away", "graphics");
    pressKey(VK_SPACE);
    tick(0.1);
    EXPECT_EQ(count("glDrawPixels"), 1);
}

TEST_F(Screens, MenuShowsTheSelectedLineAndTheOptions) {
    pressKey(VK_ESCAPE);
    expectMenu({"NeW Game", "HIGHSCORE", "Options", "Quit"}, 1, 220, 160, blue);
    expectMenu({"Statistics: OFF", "Fog: ON", "Far Sight: OFF", "Normal: OFF", "Camera Lag: 6",
                "MIDI: ON", "Done"},
               5, 185, 120, grey);
    pressKeys({VK_F2, VK_F3, VK_F5, VK_F4, VK_F6});
    Game.cameraLag = 9;
    expectMenu({"Statistics: ON", "Fog: OFF", "Far Sight: ON", "Normal: ON", "Camera Lag: 9",
                "MIDI: OFF", "Done"},
               5, 185, 120, blue);
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
    tick(0.5); // it shows the time at the goal
    EXPECT_EQ(textLike("9.00"), (Text{"9.00", 280, 0, 1, {0.8, 0.2, 0, 1}}));
}

TEST_F(Screens, GaugeShrinksToTheRightAndTurnsRed) {
    playLevel();
    const struct {
        double turbo, green, left;
    } cases[] = {{5, 1, 0.703125}, {2.5, 0.5, 0.845}, {1, 0.2, 0.930125}, {0, 0, 0}};
    for (const auto& c : cases) {
        Game.turbo = static_cast<float>(c.turbo);
        tick(0.001);
        GlCalls gauge = {{"glColor3f", 1, 1, 1},
                         {"glVertex2f", 0.7, -0.9},
                         {"glVertex2f", 0.99, -0.9},
                         {"glVertex2f", 0.99, -0.99},
                         {"glVertex2f", 0.7, -0.99}};
        if (c.turbo > 0) {
            gauge.insert(gauge.end(), {{"glColor3f", 1 - c.green, c.green, 0},
                                       {"glVertex2f", c.left, -0.9},
                                       {"glVertex2f", 0.986875, -0.9},
                                       {"glVertex2f", 0.986875, -0.986875},
                                       {"glVertex2f", c.left, -0.986875}});
        }
        const GlCalls calls = only({"glColor3f", "glVertex2f"});
        const auto start = std::find(calls.begin(), calls.end(), gauge[0]);
        EXPECT_EQ(GlCalls(start, start + std::ssize(gauge)), gauge);
        EXPECT_EQ(count("glColor3f"), c.turbo > 0 ? 2 : 1);
    }
}

TEST_F(Screens, StatisticsOfTheLastSecondAreAnOption) {
    playLevel();
    tick(0.1);
    EXPECT_EQ(textLike("FPS").text, "no FPS");
    pressKey(VK_F2);
    std::ptrdiff_t triangles = groundTriangles();
    for (int i = 0; i < 3; ++i) {
        tick(0.1);
        triangles += groundTriangles();
    }
    send(WM_TIMER, 1);
    tick(0.1);
    EXPECT_EQ(textLike("FPS"), (Text{"FPS: 4", 0, 0, 13.0 / 33, white}));
    EXPECT_EQ(textLike("PPS"),
              (Text{"PPS: " + std::to_string(triangles), 0, 13, 13.0 / 33, white}));
    triangles = groundTriangles();
    send(WM_TIMER, 1);
    EXPECT_TRUE(Game.fps == 1 && Game.pps == triangles && triangles > 100);
}

TEST_F(Screens, BannerOfALevelShrinksAway) {
    playLevel();
    Game.levelNumber = 12; // it is centred as if it had one digit
    font.setScale(1);
    const double width = font.textWidth("Level 1");
    for (const double scale : {3.0, 1.5, 0.75}) {
        tick(0.125);
        EXPECT_EQ(textLike("Level"),
                  (Text{"Level 12", 320 - width * scale / 2, 205, scale, white}));
    }
    pressKey(VK_F12); // while paused it does not shrink
    ticks(5, 0.125);
    EXPECT_NEAR(textLike("Level").scale, 0.375, 1e-4);
    pressKey(VK_F12);
    ticks(2, 0.125);
    EXPECT_NEAR(textLike("Level").scale, 0.1875, 1e-4);
    tick(0.125);
    EXPECT_EQ(textLike("Level").text, "no Level");
}

TEST_F(Screens, EverythingIsDrawnInOrderAndInItsState) {
    const std::string alpha = ", blend alpha 1-alpha", tested = ", depth greater",
                      arrow = "lines 1.5" + tested + alpha + ", smooth nicest",
                      text = "quads, texture 10 modulate nearest nearest-nearest clamp clamp, "
                             "blend 1 1-alpha";
    playLevel();
    level.fogColourCode = 0xFF8040;
    level.fogColour[0] = 0.75F;
    Game.penaltyPending = 1;
    pressKeys({VK_F3, VK_ESCAPE});
    ticks(2, 0.1); // what the first frame leaves must not show in the second
    Lines texts;
    for (const Text& line : textsDrawn()) {
        texts.push_back(line.text);
    }
    EXPECT_EQ(texts, (Lines{"Turbo", "45.00", "Level 1", "-5", "NeW Game", "HIGHSCORE", "Options",
                            "Quit"}));
    const auto levelIn = [&](const std::string& fog) {
        return Lines{"triangles" + tested +
                         ", cull front, texture 1 decal linear linear-linear repeat repeat" + fog,
                     "triangles" + tested + fog,
                     "triangles" + fog + alpha,                   // the marble
                     "lines 1" + fog + alpha + ", smooth nicest", // its outline
                     arrow,
                     "triangles" + tested,
                     arrow,
                     "triangles" + tested,
                     arrow,
                     text,
                     "loop 1.5, smooth nicest",
                     "quads",
                     text, // the gauge, the other texts
                     "quads" + alpha,
                     text}; // the shade, the menu
    };
    for (const bool fogOn : {true, false}) {
        EXPECT_EQ(painted(),
                  levelIn(fogOn ? ", fog linear 0.0025 0.000555556 0.75 0 0 0 nicest" : ""));
        const double sky = fogOn ? 1 : 0; // the colour of the fog, or black
        EXPECT_EQ(GlCalls(drawn().end() - 3, drawn().end()),
                  (GlCalls{{"SwapBuffers"},
                           {"glClearColor", sky, sky * 128 / 255, sky * 64 / 255, 0},
                           {"glClear", 0x4100}}));
        pressKey(VK_F5);
        tick(0.1);
    }
    Game.screen = Screen::BestTimes;
    for (const int what : {GL_DEPTH_TEST, GL_CULL_FACE, GL_TEXTURE_2D, GL_FOG, GL_BLEND}) {
        glEnable(static_cast<GLenum>(what)); // the drawing must switch it off itself
    }
    tick(0.1);
    EXPECT_EQ(painted(), (Lines{"picture", "quads" + alpha, text, "quads" + alpha, text}));
    EXPECT_EQ(drawn().back(), GlCall("SwapBuffers"));
}
