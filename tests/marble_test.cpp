// The marble: keys, turbo, how it rolls, what can happen to it, its arrows; and the camera.
#include <cmath>

#include "fakes/play.h"
#include "sim/camera.h"
#include "sim/view_frame.h"

using MarbleRolls = Story;
using MarbleOnScreen = Story;
using Camera = Story;

namespace {

void put(float x, float y) {
    marble.setPosition(Vector3(x, y, level.heightAt(x, y)));
}

// With lag 0 and a long tick the camera reaches its goal at once.
Vector3 settledCamera(const std::vector<Hole>& holes) {
    restartAll();
    playLevel(holes);
    Game.cameraLag = 0;
    Game.holdTime = 1;
    put(0, 0);
    tick(0.5);
    return cameraPosition;
}

} // namespace

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
    Game.turbo = 0.01F;
    Game.clock = 20;
    Game.holdTime = 0;
    for (const float power : {65.0F, 40.0F}) { // the last of the turbo, then none
        tick(0.1);
        EXPECT_EQ(marble.getPower(), power);
    }
    EXPECT_EQ(Game.turbo, 0);
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

    machine.keysHeld = {VK_UP};
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

// Where a point is on the screen: pixels from its centre, and the depth.
Vector3 spotOf(const Vector3& point) {
    const Vector3 q = viewFrame.rotation * (point - viewFrame.position);
    return {q.x / q.z * 400, q.y / q.z * 400, q.z};
}
GlCall vertexAt(double x, double y, double inverseDepth) {
    return {"glVertex3f", x / 320, y / 240, inverseDepth};
}

TEST_F(MarbleOnScreen, IsADiscWithArrowsUpAndDownhill) {
    viewFrame.set({0, -400, -350}, -0.8519663F, 0, 0);
    level.holeCount = 1;
    level.holes.reset(new Hole[1]{{40, 30, 50, 90}});
    put(0, 0);
    marble.setColour(255, 100, 0);
    marble.draw(viewFrame, level, true);
    EXPECT_EQ(count(GlCall("glColor4f", 0.1, 10 / 255.0, 0, 0.3)), 16 * (2 + 6)); // ghost, outline
    const GlCalls drawn = only({"glVertex3f"});
    ASSERT_EQ(drawn.size(), 16U * (3 + 3 + 6) + 2 * 9); // disc, ghost, outline, arrows
    const Vector3 centre = marble.position + level.normalAt(0, 0) * 20, from = spotOf(centre);
    EXPECT_EQ(drawn[0], vertexAt(from.x, from.y, 1 / (from.z - 20))); // nearer than its rim
    EXPECT_EQ(drawn[2], vertexAt(from.x + 20 * 320 / from.z, from.y, 1 / from.z));
    auto vertex = drawn.end() - 18;
    for (const Vector3& way :
         {level.normalAt(centre.x, centre.y), level.downhillAt(centre.x, centre.y)}) {
        const Vector3 tip = spotOf(centre + way * 100), end = from + (tip - from) * 0.9F;
        EXPECT_EQ(*vertex++, vertexAt(from.x, from.y, 1 / from.z));
        EXPECT_EQ(*vertex++, vertexAt(end.x, end.y, 1 / end.z));
        const double back = std::atan2(from.y - tip.y, from.x - tip.x);
        for (const int side : {0, 1, -1, 0, 1, -1, 0}) { // the head and its edge
            const double length = side == 0 ? 0 : 10, angle = back + side * 0.3927;
            EXPECT_EQ(*vertex++, vertexAt(tip.x + length * std::cos(angle),
                                          tip.y + length * std::sin(angle), 1 / tip.z + 0.0001));
        }
    }
    EXPECT_EQ(count(GlCall("glColor4f", 1, 1, 0, 1)), 2); // yellow
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

TEST_F(Camera, MovesByTheShareThatItsLagAllows) {
    playLevel();
    Game.cameraLag = 9;
    cameraPosition.x = 3000;
    tick(3); // counts as a tenth of a second
    expectVector(cameraPosition, 2700, -8800 + 0.1 * 2600, -6000 + 0.1 * 5650, 1e-3);
    const double angle = 0.1 * std::atan(3000 / 6000.0);
    expectVector({cameraAngleX, cameraAngleY, cameraAngleZ}, -angle, angle, angle, 1e-6);
    const GlCalls before = only({"glVertex3f"});
    machine.drawn.clear();
    send(WM_PAINT); // the frame has shown the camera where it is now
    EXPECT_EQ(only({"glVertex3f"}), before);
}
