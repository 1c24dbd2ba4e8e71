// The marble: keys, turbo, how it rolls, what becomes of it; its arrows; and the camera behind it.
#include <GL/gl.h>
#include <cmath>
#include <numbers>

#include "fakes/play.h"
#include "sim/camera.h"
#include "sim/projection.h"

using MarbleRolls = Story;
using MarbleOnScreen = Story;
using Camera = Story;

namespace {

void put(float x, float y) {
    marble.setPosition(Vector3(x, y, level.heightAt(x, y)));
}

// Where a point lies for the eye at (0, -400, -350): pixels from the lower left, and the depth.
Vector3 onScreen(const Vector3& p) {
    const double sinus = std::sin(0.8519663), cosinus = std::cos(0.8519663);
    const double y = p.y + 400.0, z = p.z + 350.0, depth = cosinus * z + sinus * y;
    return {static_cast<float>(320 + p.x * 400 / depth),
            static_cast<float>(240 + (cosinus * y - sinus * z) * 400 / depth),
            static_cast<float>(depth)};
}

GlCall pixel(double x, double y, double inverseDepth) {
    return {"glVertex3f", x / 320 - 1, y / 240 - 1, inverseDepth};
}

// The points of an arrow: its shaft, its head filled, and the head's edge.
GlCalls arrow(const Vector3& f, const Vector3& t) {
    const double back = std::atan2(t.y - f.y, t.x - f.x) + std::numbers::pi;
    const double lift = 1.0 / t.z + 0.0001;
    const auto barb = [&](double side) {
        return pixel(t.x + 10 * std::cos(back + side * std::numbers::pi / 8),
                     t.y + 10 * std::sin(back + side * std::numbers::pi / 8), lift);
    };
    const GlCall tip = pixel(t.x, t.y, lift), one = barb(1), other = barb(-1);
    const Vector3 end = f + (t - f) * 0.9F;
    return {pixel(f.x, f.y, 1 / f.z),
            pixel(end.x, end.y, 1 / end.z),
            tip,
            one,
            other,
            tip,
            one,
            other,
            tip};
}

// Lag 0 and a long tick: the camera arrives at once.
Vector3 settledCamera(const std::vector<Hole>& holes) {
    startAfresh();
    playLevel(holes);
    Game.cameraLag = 0;
    Game.holdTime = 1;
    put(0, 0);
    tick(0.5);
    return cameraPosition;
}

} // namespace

TEST_F(MarbleRolls, AsItsFormulasSay) {
    playLevel({{150, -5500, 60, 150}, {-200, -5250, 90, -80}});
    tick(0); // a tick of no time does no harm
    hold(VK_UP);
    ticks(40, 0.02);
    expectVector(marble.getPosition(), 21.34476, -5561.30019, 39.85691, 0.02);
    expectVector(marble.velocity, 0.36961, 2.52409, -0.41448, 1e-3);
    hold(VK_RIGHT);
    hold(VK_SHIFT);
    ticks(30, 0.02);
    expectVector(marble.getPosition(), 312.09670, -5143.64961, 9.15729, 0.05);
    expectVector(marble.velocity, 3.57413, 3.89629, 0.18902, 1e-3);
    EXPECT_NEAR(Game.turbo, 4.4, 1e-4);
    machine.keysHeld = {VK_LEFT, VK_DOWN};
    ticks(20, 0.02);
    expectVector(marble.getPosition(), 445.31596, -4995.63692, 5.02455, 0.05);
    expectVector(marble.velocity, 0.59145, 0.71430, 0.01199, 1e-3);
    expectVector(cameraPosition, 370.39673, -5484.98587, -343.82884, 0.05);
    expectVector({cameraAngleX, cameraAngleY, cameraAngleZ}, -0.98343, -0.28755, -0.28755, 1e-4);
    EXPECT_NEAR(Game.clock, 43.2, 1e-3);
}

TEST_F(MarbleRolls, NoFasterThanItsPower) {
    playLevel();
    hold(VK_UP);
    ticks(100, 0.05);
    EXPECT_NEAR(marble.velocity.length(), 4.0, 1e-5);
    hold(VK_SHIFT);
    ticks(60, 0.05);
    EXPECT_NEAR(marble.velocity.length(), 6.5, 1e-5);
    machine.keysHeld.erase(VK_SHIFT);
    tick(0.05);
    EXPECT_NEAR(marble.velocity.length(), 4.0, 1e-5);
    hold(VK_SHIFT);
    Game.turbo = 0.01F;
    for (const float power : {65.0F, 40.0F}) { // the last of the turbo, then none
        tick(0.1);
        EXPECT_EQ(marble.getPower(), power);
    }
    EXPECT_EQ(Game.turbo, 0);
}

TEST_F(MarbleRolls, OnlyWhileTheTimeRuns) {
    const struct {
        float clock;
        float holdTime;
        bool moves;
    } cases[] = {{52, 0, false},      {45.25F, 0, false}, {45.125F, 0, true}, {0.125F, 0, true},
                 {0.0625F, 0, false}, {20, 0.125F, true}, {20, 0.25F, false}};
    playLevel();
    machine.keysHeld = {VK_UP, VK_SHIFT};
    for (const auto& c : cases) {
        put(0, 0);
        Game.clock = c.clock;
        Game.holdTime = c.holdTime;
        const float turbo = Game.turbo;
        tick(0.125);
        EXPECT_EQ(marble.getPosition().y > 0, c.moves) << c.clock << ' ' << c.holdTime;
        EXPECT_EQ(Game.turbo, c.moves ? turbo - 0.125F : turbo);
        EXPECT_EQ(marble.getPower(), 65);
    }
}

TEST_F(MarbleRolls, BackToAClearSpotWhenAHoleCatchesIt) {
    playLevel({{100, 0, 40, 100}, {0, -5640, 50, 100}});
    put(100, 65);
    tick(0.001);
    EXPECT_EQ(Game.penaltyPending, 0);
    Game.clock = -1;
    put(100, 10); // four widths back is y = -150, and the hole nearer than 250 down to -210
    marble.setVelocity({1, 1, 0});
    tick(0.001);
    expectVector(marble.getPosition(), 0, -240, level.heightAt(0, -240), 1e-3);
    EXPECT_EQ(marble.velocity.length(), 0);
    EXPECT_TRUE(Game.holdTime == 1 && Game.penaltyPending && Game.clock == 0);

    hold(VK_UP);
    Game.clock = 30;
    ticks(9, 0.1); // still held
    EXPECT_EQ(marble.getPosition().y, -240);
    ticks(2, 0.1);
    EXPECT_GT(marble.getPosition().y, -240);
    put(10, -5605); // the search goes on to the back of the course
    tick(0.001);
    EXPECT_NEAR(marble.getPosition().y, -5895, 1);
}

TEST_F(MarbleRolls, NowhereWhenThereIsNoClearSpot) {
    playLevel({{0, -5900, 50, 100}});
    put(10, -5850);
    marble.setVelocity({1, 2, 0});
    Game.clock = -0.2F; // the level cannot time out in there
    ticks(3, 0.1);
    expectVector(marble.getPosition(), 10, -5850, level.heightAt(10, -5850), 1e-3);
    EXPECT_TRUE(marble.velocity.y == 2 && Game.holdTime == 1);
    EXPECT_TRUE(Game.clock == 0 && Game.penaltyPending);
}

TEST_F(MarbleRolls, BackOntoTheCourseFromItsEdges) {
    const struct {
        float x, y;
        bool reset;
        float backX, backY;
    } cases[] = {{720, 100, false, 720, 100},     {-750, 100, false, -750, 100},
                 {720.5F, 100, true, 0, 100},     {-750.5F, 100, true, 0, 100},
                 {300, -6000, false, 300, -6000}, {300, -6000.5F, true, 300, -5700},
                 {800, -6100, true, 0, -5700}};
    playLevel({{0, 5000, 100, 10}});
    for (const auto& c : cases) {
        Game.clock = -0.5F;
        Game.holdTime = 0;
        Game.penaltyPending = 0;
        put(c.x, c.y);
        marble.setVelocity({0, 0, 0});
        tick(0.001);
        EXPECT_EQ(Game.clock == 0, c.reset) << c.x << ' ' << c.y;
        EXPECT_EQ(Game.penaltyPending, c.reset) << c.x << ' ' << c.y;
        EXPECT_TRUE(marble.getPosition().x == c.backX && marble.getPosition().y == c.backY);
    }
}

TEST_F(MarbleRolls, OverTheGoalLine) {
    playLevel();
    put(0, 5800);
    tick(0.25);
    EXPECT_EQ(Game.levelDone, 0);
    put(0, 5800.5F);
    machine.lines.clear();
    tick(0.25);
    EXPECT_TRUE(Game.levelDone && Game.levelTimes[0] == 0.5F && Game.levelEndAt == 43.5F);
    EXPECT_EQ(sounds(), Lines{"sounds/allright.wav"});
    hold(VK_UP);
    tick(0.25);
    EXPECT_TRUE(marble.getPosition().y == 5800.5F && Game.levelTimes[0] == 0.5F);
}

TEST_F(MarbleOnScreen, PointsItsArrowsUpAndDownhill) {
    viewFrame.set({0, -400, -350}, -0.8519663F, 0, 0);
    const Hole grounds[] = {{0, 0, 1, 0}, // level: the slope's arrow has no length
                            {40, 30, 50, 90},
                            {-30, 60, 20, -100}};
    for (const Hole& hole : grounds) {
        level.holeCount = 1;
        level.holes.reset(new Hole[1]{hole});
        put(0, 0);
        const Vector3 centre = marble.getPosition() + level.normalAt(0, 0) * 20;
        const Vector3 up = centre + level.normalAt(centre.x, centre.y) * 100;
        const Vector3 downhill = centre + level.downhillAt(centre.x, centre.y) * 100;
        GlCalls expected = arrow(onScreen(centre), onScreen(up));
        for (const GlCall& point : arrow(onScreen(centre), onScreen(downhill))) {
            expected.push_back(point);
        }
        machine.drawn.clear();
        marble.draw(viewFrame, level, false);
        const std::size_t alone = only({"glVertex3f"}).size();
        machine.drawn.clear();
        marble.draw(viewFrame, level, true);
        const GlCalls points = only({"glVertex3f"});
        EXPECT_EQ(alone, 16U * (3 + 3 + 6)); // disc, ghost, outline; the centre is nearer
        EXPECT_NEAR(points[0].numbers[2], 1 / (onScreen(centre).z - 20.0), 1e-7);
        EXPECT_EQ(GlCalls(points.begin() + static_cast<long>(alone), points.end()), expected);
    }
}

TEST_F(Camera, KeepsClearOfTheGroundAroundItsGoal) {
    // A mound of height 1000 under, ahead of, beside and only behind the goal at (0, -400).
    for (const Vector3& probe :
         {Vector3(0, -400, 0), Vector3(0, -250, 0), Vector3(75, -400, 0), Vector3(-75, -400, 0)}) {
        const Vector3 eye = settledCamera({{probe.x, probe.y, 5, -1000}});
        EXPECT_NEAR(eye.z, -1270, 1) << probe.x << ' ' << probe.y;
    }
    EXPECT_GT(settledCamera({{0, -550, 5, -1000}}).z, -370);
    expectVector(settledCamera({}), 0, -400, -350, 1e-3);
    EXPECT_NEAR(settledCamera({{100, 0, 30, 200}}).z, // a dip lowers the marble only
                200 * 30 / std::sqrt(10000.0 + 900) - 350, 1e-3);
}

TEST_F(Camera, GlidesByTheShareThatItsLagAllows) {
    playLevel();
    Game.cameraLag = 9;
    expectVector(cameraPosition, 0, -8800, -6000, 1e-3);
    tick(0.02);
    expectVector(cameraPosition, 0, -8800 + 0.02 * 2600, -6000 + 0.02 * 5650, 1e-3);
    EXPECT_NEAR(cameraAngleX, -0.02 * std::atan(3000 / 6000.0), 1e-6);
    const Vector3 before = cameraPosition;
    tick(3); // counts as a tenth of a second
    expectVector(cameraPosition, 0, before.y + 0.1 * (-6200 - before.y),
                 before.z + 0.1 * (-350 - before.z), 1e-3);
}

TEST(View, TurnsAboutZThenYThenX) {
    ViewFrame view;
    view.set({1, 2, 3}, 0.3F, -0.5F, 0.8F);
    // Worked out with the three rotations one after the other.
    expectVector(toView(view, {4, -1, 5}), 0.904486, -3.525254, 2.958799, 1e-5);
    view.set({0, 0, 0}, 0, 0, 0);
    view.rotation = Matrix3{{1, 1, 1, 0, 0, 0, 0, 0, 0}};
    EXPECT_EQ(toView(view, {1e8F, 1, -1e8F}).x, 1); // in floats the one is lost
}
