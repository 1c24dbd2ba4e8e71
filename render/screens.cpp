#include "render/screens.h"

#include <algorithm>

#include <GL/gl.h>

#include "data/font.h"
#include "state/game.h"
#include "state/menu.h"
#include "state/screen.h"

namespace {

constexpr float statisticsScale = smallText;
constexpr float turboTextScale = 0.5F;

constexpr float bannerStartScale = 3.0F;
constexpr float bannerEndScale = 0.1F;  // a smaller banner is not drawn
constexpr float bannerShrinking = 4.0F; // share of the scale lost in a second

struct Colour {
    float red;
    float green;
    float blue;
};

constexpr Colour white = {1.0F, 1.0F, 1.0F};
constexpr Colour blue = {0.0F, 0.0F, 1.0F};
constexpr Colour grey = {0.5F, 0.5F, 0.5F};

void setTextColour(Colour colour) {
    font.setColour(colour.red, colour.green, colour.blue, 1.0F);
}

// A rectangle between two NDC points, corner by corner.
void putRectangle(float left, float first, float right, float second) {
    glVertex2f(left, first);
    glVertex2f(right, first);
    glVertex2f(right, second);
    glVertex2f(left, second);
}

void drawGaugeFrame() {
    glColor3f(1.0F, 1.0F, 1.0F);
    glBegin(GL_LINE_LOOP);
    putRectangle(0.7F, -0.9F, 0.99F, -0.99F);
    glEnd();
}

void drawGaugeBar() {
    const double t = Game.turbo;
    const double spent = 1.0 - 0.2 * t;
    constexpr double right = 0.986875; // one pixel inside the frame
    const double left = spent * right + 0.140625 * t;
    glColor3f(static_cast<float>(spent), static_cast<float>(0.2 * t), 0.0F);
    glBegin(GL_QUADS);
    putRectangle(static_cast<float>(left), -0.9F, static_cast<float>(right), -0.986875F);
    glEnd();
}

void drawStatistics() {
    font.setScale(statisticsScale);
    font.setPosition(0.0F, 0.0F);
    setTextColour(white);
    font.drawText("FPS: ");
    font.drawNumber(static_cast<float>(Game.fps), 0);
    font.drawText("\nPPS: ");
    font.drawNumber(static_cast<float>(Game.pps), 0);
}

// After the goal the clock on the screen stops, while Game.clock runs until the next level starts.
float shownClock() {
    if (Game.levelDone) { return levelTime - Game.timeOfLevel(); }
    return std::clamp(Game.clock, 0.0F, levelTime);
}

void drawClock() {
    font.setScale(normalText);
    font.setPosition(clockX, 0.0F);
    const float v = shownClock();
    const auto f = static_cast<float>(v * (1.0 / levelTime)); // share of the time left
    font.setColour(1.0F - f, f, 0.0F, 1.0F);
    font.drawNumber(v, 2);
}

// "Far Sight" cannot be chosen while there is fog.
Colour colourOf(std::int32_t item) {
    if (item == Game.menuItem) { return white; }
    return item == MenuItem::FarSight && Game.fogOn ? grey : blue;
}

void drawMenuLine(std::int32_t item) {
    const MenuLine& line = menuLine(item);
    setTextColour(colourOf(item));
    font.drawText(line.text);
    if (line.option != nullptr) { font.drawText(Game.*line.option ? "ON" : "OFF"); }
    if (item == MenuItem::CameraLag) { font.drawNumber(Game.cameraLag, 0); }
}

} // namespace

// No raster position is ever set: the picture starts in the lower left corner.
void drawPicture(const std::uint8_t* pixels) {
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_CULL_FACE);
    glDisable(GL_BLEND);
    glDisable(GL_FOG);
    glDisable(GL_TEXTURE_2D);
    glDrawPixels(screenWidth, screenHeight, GL_RGB, GL_UNSIGNED_BYTE, pixels);
}

void drawShade() {
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_CULL_FACE);
    glDisable(GL_TEXTURE_2D);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glBegin(GL_QUADS);
    glColor4f(0.0F, 0.0F, 0.0F, 0.5F);
    putRectangle(-1.0F, -1.0F, 1.0F, 1.0F);
    glEnd();
}

void drawTurboGauge() {
    font.setScale(turboTextScale);
    setTextColour(white);
    font.setPosition(475.0F, 460.0F);
    font.drawText("Turbo");

    glDisable(GL_CULL_FACE);
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_BLEND);
    glDisable(GL_FOG);
    glDisable(GL_DEPTH_TEST);
    drawGaugeFrame();
    if (Game.turbo > 0.0F) { drawGaugeBar(); }
}

void drawStatsAndClock() {
    if (Game.showStatistics) { drawStatistics(); }
    drawClock();
}

void drawBanner() {
    if (Game.levelNumber != Game.bannerLevel) { Game.bannerScale = bannerStartScale; }
    Game.bannerLevel = Game.levelNumber;
    if (Game.bannerScale < bannerEndScale) { return; }

    font.setScale(Game.bannerScale);
    font.setPosition(screenCentreX - 0.5F * font.textWidth("Level 1"), 205.0F);
    setTextColour(white);
    font.drawText("Level ");
    font.drawNumber(static_cast<float>(Game.levelNumber), 0);
    if (!Game.paused) { Game.bannerScale -= Game.frameTime * Game.bannerScale * bannerShrinking; }
}

void drawMenu() {
    font.setScale(normalText);
    const MenuPage& page = menuPageOf(Game.menuItem);
    font.setPosition(page.x, page.y);
    for (std::int32_t item = page.first; item <= page.last; ++item) {
        drawMenuLine(item);
        if (item != page.last) { font.drawText("\n"); }
    }
}
