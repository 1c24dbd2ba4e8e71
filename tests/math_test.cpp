// Vectors, matrices and the view frame.
#include "fakes/play.h"
#include "sim/vector.h"
#include "sim/view_frame.h"

namespace {

Vector3 seen(const ViewFrame& view, const Vector3& point) {
    return view.getRotation() * (point - view.getPosition());
}

} // namespace

TEST(Vector, UnitHasLengthOneExceptForNoLength) {
    expectVector(Vector3(3, -4, 12).unit(), 3 / 13.0, -4 / 13.0, 12 / 13.0);
    expectVector(Vector3(0, 1e-15F, 0).unit(), 0, 1, 0);
    expectVector(Vector3(0, 0, 0).unit(), 0, 0, 0, 0);
}

TEST(Vector, CrossOfXAndYIsZ) {
    expectVector(cross({1, 0, 0}, {0, 1, 0}), 0, 0, 1);
    expectVector(cross({1, 2, 3}, {4, 5, 7}), -1, 5, -3);
}

TEST(Matrix, ProductMayReplaceItsOperand) {
    Matrix3 a{{1, 2, 3, 4, 5, 6, 7, 8, 10}};
    a = a * Matrix3{{0, 1, 0, 2, 0, 0, 0, 0, 3}};
    expectVector(a * Vector3(1, 0, 0), 4, 10, 16);
    expectVector(a * Vector3(0, 1, 1), 10, 22, 37);
}

TEST(View, StartsAsTheWorldItself) { expectVector(seen(ViewFrame(), {5, -6, 7}), 5, -6, 7); }

TEST(View, TurnsAboutEachAxisAgainstTheAngle) {
    ViewFrame view;
    const float quarter = 1.5707964F;
    view.set({10, 20, 30}, 0, 0, 0);
    expectVector(seen(view, {10, 20, 30}), 0, 0, 0);
    view.set({0, 0, 0}, quarter, 0, 0);
    expectVector(seen(view, {0, 1, 0}), 0, 0, -1);
    view.set({0, 0, 0}, 0, quarter, 0);
    expectVector(seen(view, {0, 0, 1}), -1, 0, 0);
    view.set({0, 0, 0}, 0, 0, quarter);
    expectVector(seen(view, {1, 0, 0}), 0, -1, 0);
}

TEST(View, TurnsAboutZThenYThenX) {
    ViewFrame view;
    view.set({1, 2, 3}, 0.3F, -0.5F, 0.8F);
    // Worked out with the three rotations one after the other.
    expectVector(seen(view, {4, -1, 5}), 0.904486, -3.525254, 2.958799, 1e-5);
}
