#include <cmath>

#include <GL/gl.h>

#include "render/arrow.h"
#include "sim/level.h"
#include "sim/marble.h"
#include "sim/projection.h"
#include "state/screen.h"

namespace {

constexpr float segmentAngle = 0.39269912F;    // radians, a sixteenth of a full turn
constexpr float fullTurn = 6.283185958862305F; // just above 2 pi: sixteen segments stay below it
constexpr double aspect = 1.333333;            // of a circle in NDC: its height over its width
constexpr float centrePerColour = 0.003921568859368563F; // from 0..255 to 0..1
constexpr float rimPerColour = 0.0003921568568330258F;   // the rim is a tenth as bright
constexpr float solid = 1.0F;
constexpr float ghostly = 0.3F;

// The disc on the screen: NDC, with the inverse depth as third coordinate. Its centre is a radius
// closer to the eye than its rim.
struct Disc {
    Vector3 centre;
    float radius;   // in NDC x
    float rimDepth; // inverse depth of the rim
    float centreColour[3];
    float rimColour[3];
};

Disc discOf(const Marble& rolling, const ViewFrame& view, const Level& ground) {
    const Vector3 q = toView(view, marbleCentre(ground, rolling.getPosition()));
    Disc disc = {};
    disc.centre.set(static_cast<float>(q.x * focalLength / q.z * ndcPerPixelX),
                    static_cast<float>(q.y * focalLength / q.z * ndcPerPixelY),
                    static_cast<float>(1.0 / (static_cast<double>(q.z) - marbleRadius)));
    disc.radius = static_cast<float>(static_cast<double>(marbleRadius) / q.z);
    disc.rimDepth = static_cast<float>(1.0 / q.z);
    for (int i = 0; i < 3; ++i) {
        disc.centreColour[i] = rolling.colour[i] * centrePerColour;
        disc.rimColour[i] = rolling.colour[i] * rimPerColour;
    }
    return disc;
}

Vector3 rimPoint(const Disc& disc, float angle, double heightScale) {
    const double x = std::cos(static_cast<double>(angle)) * disc.radius;
    const double y = std::sin(static_cast<double>(angle)) * disc.radius * heightScale;
    return {static_cast<float>(disc.centre.x + x), static_cast<float>(disc.centre.y + y),
            disc.rimDepth};
}

void setColour(const float (&colour)[3], float alpha) {
    glColor4f(colour[0], colour[1], colour[2], alpha);
}

void putPoint(const Vector3& p) {
    glVertex3f(p.x, p.y, p.z);
}

// Calls draw with both rim points of each of the 16 segments.
template <typename Draw>
void forEachSegment(const Disc& disc, double heightScale, Draw draw) {
    for (float angle = 0.0F; angle < fullTurn;) {
        const float next = angle + segmentAngle;
        draw(rimPoint(disc, angle, heightScale), rimPoint(disc, next, heightScale));
        angle = next;
    }
}

void drawDisc(const Disc& disc, float alpha) {
    forEachSegment(disc, aspect, [&](const Vector3& a, const Vector3& b) {
        glBegin(GL_TRIANGLES);
        setColour(disc.centreColour, alpha);
        putPoint(disc.centre);
        setColour(disc.rimColour, alpha);
        putPoint(b);
        setColour(disc.rimColour, alpha);
        putPoint(a);
        glEnd();
    });
}

// Each segment is drawn three times, which makes the outline denser. Its height is computed with
// the aspect rounded to a float, unlike the disc's.
void drawOutline(const Disc& disc) {
    forEachSegment(disc, static_cast<float>(aspect), [&](const Vector3& a, const Vector3& b) {
        glBegin(GL_LINES);
        for (int pass = 0; pass < 3; ++pass) {
            setColour(disc.rimColour, ghostly);
            putPoint(b);
            setColour(disc.rimColour, ghostly);
            putPoint(a);
        }
        glEnd();
    });
}

void setSolidState() {
    glEnable(GL_DEPTH_TEST);
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_CULL_FACE);
    glDisable(GL_BLEND);
}

// Without the depth test the disc shows through hills.
void setGhostState() {
    glDisable(GL_DEPTH_TEST);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
}

void setOutlineState() {
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glEnable(GL_LINE_SMOOTH);
    glHint(GL_LINE_SMOOTH_HINT, GL_NICEST);
    glLineWidth(1.0F);
}

constexpr float arrowLength = 100.0F; // world units

// Returns x and y in pixels from the bottom left, and the depth as z.
Vector3 onScreen(const ViewFrame& view, const Vector3& point) {
    const Vector3 q = toView(view, point);
    return {static_cast<float>(q.x * focalLength / q.z + screenCentreX),
            static_cast<float>(q.y * focalLength / q.z + screenCentreY), q.z};
}

void drawNormalArrow(const ViewFrame& view, const Level& ground, const Vector3& centre) {
    const Vector3 tip = centre + ground.normalAt(centre.x, centre.y) * arrowLength;
    drawArrow(onScreen(view, centre), onScreen(view, tip));
}

void drawSlopeArrow(const ViewFrame& view, const Level& ground, const Vector3& centre) {
    const Vector3 tip = centre + ground.downhillAt(centre.x, centre.y) * arrowLength;
    drawArrow(onScreen(view, centre), onScreen(view, tip));
}

} // namespace

void Marble::draw(const ViewFrame& view, const Level& ground, bool normalMode) const {
    const Disc disc = discOf(*this, view, ground);
    setSolidState();
    drawDisc(disc, solid);
    setGhostState();
    drawDisc(disc, ghostly);
    setOutlineState();
    drawOutline(disc);
    if (!normalMode) { return; }
    const Vector3 centre = marbleCentre(ground, getPosition());
    drawNormalArrow(view, ground, centre);
    drawSlopeArrow(view, ground, centre);
}
