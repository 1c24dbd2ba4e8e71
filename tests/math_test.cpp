// Vectors, matrices and the view frame.
#include "fakes/play.h"
#include "sim/projection.h"
#include "sim/vector.h"
#include "sim/view_frame.h"

TEST(Vector, UnitHasLengthOneExceptForNoLength) {
    expectVector(Vector3(3, -4, 12).unit(), 3 / 13.0, -4 / 13.0, 12 / 13.0);
    expectVector(Vector3(0, 1e-15F, 0).unit(), 0, 1, 0);
    expectVector(Vector3(0, 0, 0).unit(), 0, 0, 0, 0);
}

TEST(View, TurnsAboutZThenYThenX) {
    ViewFrame view;
    view.set({1, 2, 3}, 0.3F, -0.5F, 0.8F);
    // Worked out with the three rotations one after the other.
    expectVector(toView(view, {4, -1, 5}), 0.904486, -3.525254, 2.958799, 1e-5);
    view.set({0, 0, 0}, 0, 0, 0);
    view.rotation = Matrix3{{1, 1, 1, 0, 0, 0, 0, 0, 0}};
    EXPECT_EQ(toView(view, {16777216, 1, -16777216}).x, 1); // in floats the one is lost
}
