// The camera behind the marble, and how its view turns the world.
#include "fakes/play.h"
#include "sim/camera.h"
#include "sim/projection.h"

using Camera = Story;

namespace {

// Lag 0 and a long tick: the camera arrives at once.
Vector3 settledCamera(const std::vector<Hole>& holes, float x, float y) {
    startAfresh();
    playLevel(holes);
    Game.cameraLag = 0;
    Game.holdTime = 1;
    marble.setPosition({x, y, level.heightAt(x, y)});
    tick(0.5);
    return cameraPosition;
}

} // namespace

TEST_F(Camera, SettlesBehindAndAboveTheMarble) {
    expectVector(settledCamera({}, 0, 0), 0, -400, -350, 1e-3);
    tick(0.1); // the angles follow from where the camera was
    EXPECT_NEAR(cameraAngleX, -0.8519663, 1e-6);
    EXPECT_EQ(cameraAngleY, 0);
    expectVector(toView(viewFrame, marble.getPosition()), 0, 0, 531.507, 1e-3);
}

TEST_F(Camera, KeepsClearOfTheGroundAroundItsGoal) {
    // A mound of height 1000 under, ahead of, beside and only behind the goal at (0, -400).
    for (const Vector3& probe :
         {Vector3(0, -400, 0), Vector3(0, -250, 0), Vector3(75, -400, 0), Vector3(-75, -400, 0)}) {
        const Vector3 eye = settledCamera({{probe.x, probe.y, 5, -1000}}, 0, 0);
        EXPECT_NEAR(eye.z, -1270, 1) << probe.x << ' ' << probe.y;
    }
    EXPECT_GT(settledCamera({{0, -550, 5, -1000}}, 0, 0).z, -370);
    expectVector(settledCamera({{100, 0, 30, 200}}, 0, 0), 0, -400,
                 200 * 30 / std::sqrt(10000.0 + 900) - 350, 1e-3); // a dip lowers the marble only
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
