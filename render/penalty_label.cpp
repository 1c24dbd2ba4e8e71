#include "render/penalty_label.h"

#include "data/font.h"
#include "render/screens.h"
#include "sim/level.h"
#include "sim/marble.h"
#include "sim/penalty.h"
#include "sim/projection.h"
#include "state/game.h"
#include "state/screen.h"

namespace {

constexpr const char* labelText = "-5";

// The share of the way to the clock that is left, for each second that the label has left. The
// label starts a little beyond the marble and passes it after a tenth of a second.
constexpr float wayPerFade = 1.6666666F;

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
    const float f = wayPerFade * Game.penaltyFade;
    // start.y counts from the bottom but is used as if from the top: the label starts mirrored at
    // the centre line, close to the marble while that is near the middle of the screen.
    font.setPosition(start.x * f + clockX * (1.0F - f), start.y * f);
    font.drawText(labelText);
    agePenalty();
}
