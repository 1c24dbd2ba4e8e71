#include "render/best_times_screen.h"

#include "data/best_times.h"
#include "data/font.h"
#include "state/game.h"
#include "state/screen.h"

namespace {

// Screen pixels.
constexpr float runTimesX = 80.0F;
constexpr float runTop = -smallLine; // each row begins with a line break
constexpr float tableTop = 80.0F;
constexpr float rankX = 140.0F;
constexpr float timeX = 255.0F;
constexpr float nameX = 450.0F;

constexpr const char* footer = "press <space> to return";

void setRunStyle() {
    font.setColour(1.0F, 0.0F, 0.0F, 1.0F);
    font.setScale(smallText);
}

void drawRunLabels() {
    setRunStyle();
    font.setPosition(0.0F, runTop);
    for (std::int32_t i = 1; i <= Game.levelCount; ++i) {
        font.drawText("\nLevel ");
        font.drawNumber(static_cast<float>(i), 0);
        font.drawText(":");
    }
}

// Draws the times of the run's levels. Returns their total.
float drawRunTimes() {
    float total = 0.0F;
    setRunStyle();
    font.setPosition(runTimesX, runTop);
    for (const float time : Game.allLevelTimes()) {
        font.drawText("\n");
        font.drawNumber(time, 2);
        total += time;
    }
    return total;
}

void drawRunTotal(float total) {
    const auto below = static_cast<float>(smallLine * Game.levelCount);
    setRunStyle();
    font.setPosition(runTimesX, below);
    font.drawText("------");
    font.setPosition(0.0F, below + smallLine);
    font.drawText("total");
    font.setPosition(runTimesX, below + smallLine);
    font.drawNumber(total, 2);
}

void drawTitle() {
    font.setPosition(205.0F, 10.0F);
    font.setColour(0.0F, 1.0F, 1.0F, 1.0F);
    font.setScale(normalText);
    font.drawText("Best Times");
}

// Red for the run just played, and for every entry with exactly the same time.
void setRowColour(int slot, float runTotal) {
    if (bestTimes.slots[slot].time == runTotal || slot == Game.newBestEntry) {
        font.setColour(1.0F, 0.0F, 0.0F, 1.0F);
    } else {
        constexpr float lightGrey = 200.0F / 255.0F;
        font.setColour(lightGrey, lightGrey, lightGrey, 1.0F);
    }
}

template <typename DrawCell>
void drawColumn(float x, float runTotal, DrawCell drawCell) {
    font.setScale(normalText);
    font.setPosition(x, tableTop);
    for (int slot = 0; slot < bestTimesShown; ++slot) {
        setRowColour(slot, runTotal);
        drawCell(slot);
        font.drawText("\n");
    }
}

void drawTable(float runTotal) {
    drawColumn(timeX, runTotal, [](int slot) { font.drawNumber(bestTimes.slots[slot].time, 2); });
    drawColumn(rankX, runTotal, [](int slot) { font.drawNumber(static_cast<float>(slot + 1), 0); });
    drawColumn(nameX, runTotal, [](int slot) { font.drawText(bestTimes.slots[slot].name); });
}

void drawFooter() {
    font.setScale(smallText);
    font.setColour(0.0F, 0.0F, 1.0F, 1.0F);
    font.setPosition(screenCentreX - 0.5F * font.textWidth(footer), 460.0F);
    font.drawText(footer);
}

} // namespace

void drawBestTimes() {
    drawRunLabels();
    const float total = drawRunTimes();
    drawRunTotal(total);
    drawTitle();
    drawTable(total);
    drawFooter();
}
