#include "render/penalty_label.h"

#include "data/font.h"
#include "sim/level.h"
#include "sim/marble.h"
#include "sim/penalty.h"
#include "sim/projection.h"
#include "state/game.h"

namespace {

constexpr const char* labelText = "-5";

// The flight starts a little beyond the marble and reaches it after a tenth of a second.
constexpr float flightPerFade = 1.6666666F; // share of the way left, per second of life left

struct ScreenPoint {
    float x; // pixels from the left
    float y; // pixels from the bottom
};

ScreenPoint marbleOnScreen() {
    const Vector3 q = toView(viewFrame, marbleCentre(level, marble.getPosition()));
    const auto nx = static_cast<float>(q.x * focalLength / q.z * ndcPerPixelX);
    const auto ny = static_cast<float>(q.y * focalLength / q.z * ndcPerPixelY);
    return {(nx + 1.0F) * screenCentreX, (ny + 1.0F) * screenCentreY};
}

} // namespace

void drawPenaltyLabel() {
    if (!Game.penaltyPending) { return; }

    const ScreenPoint start = marbleOnScreen();
    font.setScale(1.0F - Game.penaltyFade);
    font.setColour(1.0F, 0.0F, 0.0F, 1.0F);
    const float f = flightPerFade * Game.penaltyFade;
    // The y counted from the bottom serves as one counted from the top: while the marble is near
    // the middle of the screen the label starts close to it, mirrored at the centre line.
    font.setPosition(start.x * f + clockX * (1.0F - f), start.y * f);
    font.drawText(labelText);
    agePenalty();
}
