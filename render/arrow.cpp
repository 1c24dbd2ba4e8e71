#include "render/arrow.h"

#include <cmath>

#include <GL/gl.h>

#include "state/screen.h"

namespace {

constexpr float shaftShare = 0.9F;   // of the arrow's length
constexpr float barbLength = 10.0F;  // pixels
constexpr float halfTurn = 3.1416F;  // radians
constexpr float barbAngle = 0.3927F; // radians either side of the shaft
constexpr float headLift = 0.0001F;  // inverse depth added so that the head covers the shaft
constexpr auto scaleX = static_cast<float>(ndcPerPixelX);
constexpr auto scaleY = static_cast<float>(ndcPerPixelY);

void putPixel(float x, float y, float inverseDepth) {
    glVertex3f(x * scaleX - 1.0F, y * scaleY - 1.0F, inverseDepth);
}

// Returns the end of a barb, in pixels; `angle` is its direction from the tip, in radians.
Vector3 barbEnd(const Vector3& tip, double angle) {
    return {static_cast<float>(tip.x + barbLength * std::cos(angle)),
            static_cast<float>(tip.y + barbLength * std::sin(angle)), tip.z};
}

void setArrowState() {
    glDisable(GL_CULL_FACE);
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_FOG);
    glEnable(GL_LINE_SMOOTH);
    glEnable(GL_DEPTH_TEST);
    glHint(GL_LINE_SMOOTH_HINT, GL_NICEST);
    glLineWidth(1.5F);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glColor4f(1.0F, 1.0F, 0.0F, 1.0F);
}

void drawShaft(const Vector3& from, const Vector3& to) {
    const Vector3 end = from + (to - from) * shaftShare;
    glBegin(GL_LINES);
    putPixel(from.x, from.y, 1.0F / from.z);
    putPixel(end.x, end.y, 1.0F / end.z);
    glEnd();
}

void drawHead(const Vector3& from, const Vector3& tip) {
    const double theta = std::atan2(tip.y - from.y, tip.x - from.x);
    const Vector3 first = barbEnd(tip, theta + halfTurn - barbAngle);
    const Vector3 second = barbEnd(tip, theta + halfTurn + barbAngle);
    const float depth = 1.0F / tip.z + headLift;

    glDisable(GL_BLEND);
    glBegin(GL_TRIANGLES);
    putPixel(tip.x, tip.y, depth);
    putPixel(second.x, second.y, depth);
    putPixel(first.x, first.y, depth);
    glEnd();
    glEnable(GL_BLEND);
    glBegin(GL_LINES);
    putPixel(tip.x, tip.y, depth);
    putPixel(second.x, second.y, depth);
    putPixel(first.x, first.y, depth);
    putPixel(tip.x, tip.y, depth);
    glEnd();
}

} // namespace

void drawArrow(const Vector3& from, const Vector3& to) {
    setArrowState();
    drawShaft(from, to);
    drawHead(from, to);
}
