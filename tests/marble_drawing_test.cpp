// The marble on the screen: a shaded disc, its ghost, its outline, and the arrows.
#include <GL/gl.h>
#include <cmath>
#include <numbers>

#include "fakes/play.h"
#include "sim/view_frame.h"

namespace {

// A marble of colour (255, 100, 0) at the origin, seen from behind and above as in play.
struct MarbleOnScreen : Story {
    MarbleOnScreen() {
        marble.setPosition({0, 0, 0});
        marble.setColour(255, 100, 0);
        viewFrame.set({0, -400, -350}, pitch, 0, 0);
    }
    static constexpr float pitch = -0.8519663F;
};

// The disc's centre, 20 above the ground: on the middle line, at this height and depth.
const double sinus = std::sin(0.8519663), cosinus = std::cos(0.8519663);
const double depth = cosinus * 330 + sinus * 400;
const double height = (cosinus * 400 - sinus * 330) * 400 / depth / 240;

GlCall rim(int segment) {
    const double angle = segment * std::numbers::pi / 8;
    return call("glVertex3f", std::cos(angle) * 20 / depth,
                height + std::sin(angle) * 20 / depth * 1.333333, 1 / depth);
}

GlCalls disc(double alpha) {
    const GlCall colour = call("glColor4f", 1, 100 / 255.0, 0, alpha);
    const GlCall rimColour = call("glColor4f", 0.1, 10 / 255.0, 0, alpha);
    const GlCall centre = call("glVertex3f", 0, height, 1 / (depth - 20));
    GlCalls all;
    for (int segment = 0; segment < 16; ++segment) {
        all = all + calls(call("glBegin", GL_TRIANGLES), colour, centre, rimColour,
                          rim(segment + 1), rimColour, rim(segment), call("glEnd"));
    }
    return all;
}

GlCalls outline() {
    const GlCall colour = call("glColor4f", 0.1, 10 / 255.0, 0, 0.3);
    GlCalls all;
    for (int segment = 0; segment < 16; ++segment) {
        const GlCalls line = calls(colour, rim(segment + 1), colour, rim(segment));
        all = all + calls(call("glBegin", GL_LINES)) + line + line + line + calls(call("glEnd"));
    }
    return all;
}

GlCalls expectedMarble() {
    const GlCall blending = call("glBlendFunc", GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    return calls(on(GL_DEPTH_TEST), off(GL_TEXTURE_2D), off(GL_CULL_FACE), off(GL_BLEND)) +
           disc(1) + calls(off(GL_DEPTH_TEST), on(GL_BLEND), blending) + disc(0.3) +
           calls(on(GL_BLEND), blending, on(GL_LINE_SMOOTH),
                 call("glHint", GL_LINE_SMOOTH_HINT, GL_NICEST), call("glLineWidth", 1)) +
           outline();
}

GlCall pixel(double x, double y, double inverseDepth) {
    return call("glVertex3f", x / 320 - 1, y / 240 - 1, inverseDepth);
}

// An arrow from one pixel point to another, with the barbs of its head.
GlCalls arrow(const Vector3& f, const Vector3& t) {
    const double back = std::atan2(t.y - f.y, t.x - f.x) + std::numbers::pi;
    const double lift = 1.0 / t.z + 0.0001;
    const auto barb = [&](double side) {
        return pixel(t.x + 10 * std::cos(back + side * std::numbers::pi / 8),
                     t.y + 10 * std::sin(back + side * std::numbers::pi / 8), lift);
    };
    const GlCall tip = pixel(t.x, t.y, lift);
    return calls(
        off(GL_CULL_FACE), off(GL_TEXTURE_2D), off(GL_FOG), on(GL_LINE_SMOOTH), on(GL_DEPTH_TEST),
        call("glHint", GL_LINE_SMOOTH_HINT, GL_NICEST), call("glLineWidth", 1.5),
        call("glBlendFunc", GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA), call("glColor4f", 1, 1, 0, 1),
        call("glBegin", GL_LINES), pixel(f.x, f.y, 1 / f.z),
        pixel(f.x + 0.9 * (t.x - f.x), f.y + 0.9 * (t.y - f.y), 1 / (f.z + 0.9 * (t.z - f.z))),
        call("glEnd"), off(GL_BLEND), call("glBegin", GL_TRIANGLES), tip, barb(1), barb(-1),
        call("glEnd"), on(GL_BLEND), call("glBegin", GL_LINES), tip, barb(1), barb(-1), tip,
        call("glEnd"));
}

} // namespace

TEST_F(MarbleOnScreen, IsADiscWithAGhostAndAnOutline) {
    marble.draw(viewFrame, level, false);
    EXPECT_EQ(difference(drawn(), expectedMarble()), "");
}

TEST_F(MarbleOnScreen, PointsItsArrowsUpAndDownhill) {
    const auto onScreen = [](const Vector3& p) {
        const double y = p.y + 400.0, z = p.z + 350.0, q = cosinus * z + sinus * y;
        return Vector3(static_cast<float>(320 + p.x * 400 / q),
                       static_cast<float>(240 + (cosinus * y - sinus * z) * 400 / q),
                       static_cast<float>(q));
    };
    const Hole grounds[] = {{0, 0, 1, 0}, // level: the slope's arrow has no length
                            {40, 30, 50, 90},
                            {-30, 60, 20, -100}};
    for (const Hole& hole : grounds) {
        level.holeCount = 1;
        level.holes.reset(new Hole[1]{hole});
        marble.setPosition({0, 0, level.heightAt(0, 0)});
        const Vector3 centre = marble.getPosition() + level.normalAt(0, 0) * 20;
        const Vector3 up = centre + level.normalAt(centre.x, centre.y) * 100;
        const Vector3 downhill = centre + level.downhillAt(centre.x, centre.y) * 100;
        machine.drawn.clear();
        marble.draw(viewFrame, level, true);
        const GlCalls arrows(drawn().end() - 2 * 26, drawn().end());
        EXPECT_EQ(difference(arrows, arrow(onScreen(centre), onScreen(up)) +
                                         arrow(onScreen(centre), onScreen(downhill))),
                  "");
    }
}
