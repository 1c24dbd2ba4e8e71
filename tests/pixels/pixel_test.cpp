// What only pixels show: the game on the real OpenGL, drawn without a screen.
#include <GL/gl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>

#include "app/window.h"
#include "data/font.h"
#include "fakes/game_files.h"
#include "pixels/picture.h"
#include "platform/sdl/shutdown.h"
#include "sim/level.h"
#include "sim/marble.h"
#include "sim/view_frame.h"
#include "state/game.h"

namespace {

constexpr Pixel fogColour = {255, 128, 0};
constexpr Pixel groundColour = {40, 200, 90};

// The title: red grows to the right, green upwards, all bits of both in use.
unsigned titleAt(int x, int y) {
    return static_cast<unsigned>(x * 255 / 639) << 16 | static_cast<unsigned>(y * 255 / 479) << 8;
}

// The font's first picture has holes of 3 x 3 pixels.
bool isSolid(int x, int y) {
    return (x / 3 + y / 3) % 2 == 0;
}

// One window on the real machine for all tests.
class OnScreen : public testing::Test {
protected:
    static void SetUpTestSuite() {
        if (Game.window != nullptr) { return; }
        setenv("SDL_VIDEODRIVER", "offscreen", 1);
        setenv("SDL_AUDIODRIVER", "dummy", 1);
        static const EmptyFolder folder;
        writeGameFiles();
        writeMipChain("graphics/font/font", 256, 9, 0xFFFFFF); // the smaller pictures are solid
        writeBitmap("graphics/font/font_0.bmp", 256, 256,
                    [](int x, int y) { return isSolid(x, y) ? 0xFFFFFFU : 0U; });
        writeMipChain("ground", 128, 8, 0x28C85A); // one colour in all mip levels
        writeBitmap("graphics/title.bmp", 640, 480, titleAt);
        WNDCLASSA windowClass = {};
        windowClass.lpfnWndProc = GameWindowProc;
        windowClass.lpszClassName = "Glorbix";
        RegisterClassA(&windowClass);
        Game.window = CreateWindowExA(0, "Glorbix", "Glorbix", WS_POPUP, 0, 0, 640, 480, nullptr,
                                      nullptr, nullptr, nullptr);
        std::atexit(shutDown);
    }

    void SetUp() override {
        ASSERT_NE(Game.glContext, nullptr);
        clear({0, 0, 0});
    }

    static void clear(Pixel colour) {
        glClearColor(static_cast<float>(colour.red / 255), static_cast<float>(colour.green / 255),
                     static_cast<float>(colour.blue / 255), 0);
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    }

    static void load(const std::vector<Hole>& holes) {
        writeFile("a.map", levelText(holes, "fogcolor= 0xFF8000 marblecolor= 0xFF6400"));
        ASSERT_TRUE(level.load("a.map", marble));
    }
};

Pixel pixelOf(unsigned colour) {
    return {static_cast<double>(colour >> 16), static_cast<double>(colour >> 8 & 255),
            static_cast<double>(colour & 255)};
}

// Puts a text in the test font; x and y count from the top left. Holes leave what is there.
void putText(Picture& picture, const char* text, double x, double y, double scale, Pixel colour) {
    for (; *text != '\0'; ++text) {
        const TestGlyph glyph = *text == ' ' ? TestGlyph{0, 0, 10, 0} : testGlyph(*text);
        for (int py = 0; py < 480; ++py) {
            const double row = (479.5 - py - y) / scale;
            if (row < 0 || row >= glyph.height) { continue; }
            for (int px = 0; px < 640; ++px) {
                const double column = (px + 0.5 - x) / scale;
                if (column < 0 || column >= glyph.width) { continue; }
                const int texelX = static_cast<int>((glyph.left + column) * 256 / 255);
                const int texelY = static_cast<int>(256 - (glyph.top + row) * 256 / 255);
                if (isSolid(texelX, texelY)) { picture.at(px, py) = colour; }
            }
        }
        x += glyph.width * scale;
    }
}

// The eye behind and above the origin, as in play.
constexpr float pitch = -0.8519663F;
const Vector3 eye(0, -400, -350);

// Where the line of sight through a pixel meets level ground.
struct Spot {
    double x, y, depth;
};

Spot groundUnder(int px, int py, double angle) {
    const double vx = ((px + 0.5) / 320 - 1) / 1.25, vy = ((py + 0.5) / 240 - 1) / 1.666667;
    const double down = std::sin(angle) * vy + std::cos(angle);
    const double ahead = std::cos(angle) * vy - std::sin(angle);
    const double depth = down > 0 ? 350 / down : 1e9;
    return {vx * depth, -400 + ahead * depth, depth};
}

// The rows that are drawn without far sight end at y = 1830.
bool isOnCourse(const Spot& spot) {
    return spot.x > -750 && spot.x < 720 && spot.y < 1830;
}

Pixel fogged(Pixel colour, double depth) {
    const double clear = std::clamp((1 / 1800.0 - 1 / depth) / (1 / 1800.0 - 1 / 400.0), 0.0, 1.0);
    return colour * clear + fogColour * (1 - clear);
}

// Covers 64 x 64 pixels with the ground's texture, one texel of mip level k on each pixel. Returns
// their mean colour.
Pixel meanOfMipLevel(int k) {
    const float repeats = 64 / static_cast<float>(groundTextureSize >> k);
    for (const int state : {GL_FOG, GL_BLEND, GL_DEPTH_TEST, GL_CULL_FACE}) {
        glDisable(static_cast<GLenum>(state));
    }
    glEnable(GL_TEXTURE_2D);
    glColor3f(1, 1, 1);
    glBegin(GL_QUADS);
    for (const auto& [x, y] : {std::pair{0.0F, 0.0F}, {1.0F, 0.0F}, {1.0F, 1.0F}, {0.0F, 1.0F}}) {
        glTexCoord2f(x * repeats, y * repeats);
        glVertex2f(x * 64 / 320 - 1, y * 64 / 240 - 1);
    }
    glEnd();
    Picture picture = photograph();
    Pixel mean = {};
    for (int i = 0; i < 64 * 64; ++i) {
        mean = mean + picture.at(i % 64, i / 64) * (1.0 / (64 * 64));
    }
    return mean;
}

// Returns how much the mean greys of 4 x 4 blocks of the ground's texture differ.
double unevenness() {
    double greys[16] = {};
    for (int i = 0; i < 128 * 128; ++i) {
        const std::uint8_t* p = &level.texturePixels[0][i * 3];
        greys[i / 128 / 32 * 4 + i % 128 / 32] +=
            (0.299 * p[0] + 0.587 * p[1] + 0.114 * p[2]) / (32 * 32);
    }
    const auto [least, most] = std::minmax_element(std::begin(greys), std::end(greys));
    return *most - *least;
}

} // namespace

TEST_F(OnScreen, GroundsOfTheGameShowNoBandsAndKeepTheirHueFarAway) {
    int grounds = 0;
    std::filesystem::create_directory_symlink(GLORBIX_GROUNDS, "grounds"); // a path without blanks
    for (const auto& file : std::filesystem::directory_iterator("grounds")) {
        const std::string name = file.path().string();
        if (!name.ends_with("_0.bmp")) { continue; }
        SCOPED_TRACE(name);
        ++grounds;
        writeFile("c.map", "texturefile= " + name.substr(0, name.size() - 6));
        ASSERT_TRUE(level.load("c.map", marble));
        EXPECT_LT(unevenness(), 15);
        const Pixel far = meanOfMipLevel(5), farther = meanOfMipLevel(6);
        const double share = farther.green / far.green;
        EXPECT_NEAR(share, 0.94, 0.09);
        EXPECT_NEAR(farther.red, far.red * share, 10);
        EXPECT_NEAR(farther.blue, far.blue * share, 10);
    }
    EXPECT_EQ(grounds, 11);
}

TEST_F(OnScreen, FogGrowsToItsFullColourAtDepth1800) {
    load({});
    ViewFrame view;
    for (const float angle : {pitch, -1.25F}) {
        clear(fogColour);
        view.set(eye, angle, 0, 0);
        level.drawGround(view, false, true);
        expectLike(photograph(), paint([&](int x, int y) {
                       const Spot spot = groundUnder(x, y, angle);
                       return isOnCourse(spot) ? fogged(groundColour, spot.depth) : fogColour;
                   }),
                   "fog", 10, 0.005);
    }
}

TEST_F(OnScreen, MarbleBehindAHillIsDrawnFaintly) {
    const struct {
        const char* name;
        std::vector<Hole> holes;
        double share; // of the marble's own colour
    } cases[] = {{"marble-before-a-hill", {{0, 300, 40, -300}}, 1},
                 {"marble-behind-a-hill", {{0, -150, 40, -300}}, 0.3}};
    for (const auto& c : cases) {
        load(c.holes);
        clear({0, 0, 0});
        viewFrame.set(eye, pitch, 0, 0);
        marble.setPosition({0, 0, level.heightAt(0, 0)});
        level.drawGround(viewFrame, false, false);
        marble.draw(viewFrame, level, false);
        Picture actual = photograph();
        const Vector3 q = viewFrame.getRotation() *
                          (marbleCentre(level, marble.getPosition()) - viewFrame.getPosition());
        const double centreX = 320 + q.x * 400 / q.z, centreY = 240 + q.y * 400 / q.z;
        expectLike(actual, paint([&](int x, int y) {
                       const double r =
                           std::hypot(x + 0.5 - centreX, y + 0.5 - centreY) / (6400.0 / q.z);
                       if (r > 0.85) {
                           return actual.at(x, y); // the outline, and what is around it
                       }
                       const Pixel disc = Pixel{255, 100, 0} * (1 - 0.9 * r);
                       return disc * c.share + groundColour * (1 - c.share);
                   }),
                   c.name, 14);
    }
}

TEST_F(OnScreen, TitleFillsTheScreenWhateverTheStateBefore) {
    load({});
    level.drawGround(viewFrame, false, true); // leaves its OpenGL state
    Game.screen = Screen::Title;
    GameWindowProc(Game.window, WM_PAINT, 0, 0);
    expectLike(photograph(), paint([](int x, int y) { return pixelOf(titleAt(x, y)); }), "title",
               8);
}

TEST_F(OnScreen, LargeTextKeepsTheEdgesOfItsPixels) {
    clear(groundColour);
    font.setScale(4);
    font.setPosition(40, 60);
    font.setColour(1, 0.5F, 0, 1);
    font.drawText("Go !");
    Picture expected = paint([](int, int) { return groundColour; });
    putText(expected, "Go !", 40, 60, 4, {255, 128, 0});
    expectLike(photograph(), expected, "large-text");
}
