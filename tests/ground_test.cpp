// The ground: its height, its catch radius, and the cells that are drawn.
#include "fakes/play.h"
#include "sim/view_frame.h"

namespace {

struct Ground : Story {
    Ground() { writeMipChain("ground", groundTextureSize, groundTextureLevels); }

    static void make(const std::vector<Hole>& holes) {
        writeFile("a.map", levelText(holes));
        ASSERT_TRUE(level.load("a.map", marble));
    }
};

struct View {
    const char* name;
    Vector3 eye;
    float pitch, yaw;
    bool farSight;
    std::ptrdiff_t cells; // that it shows
    unsigned digest;      // of their places in the order of drawing
};

// Returns a number that depends on the cells drawn and on their order. The first corner of each
// pair of triangles tells which cell it is; there are 50 to a row.
unsigned digestOfCells() {
    const GlCalls corners = only({"glTexCoord2f"});
    unsigned digest = 0;
    for (std::size_t i = 0; i + 5 < corners.size(); i += 6) {
        const auto& corner = corners[i].numbers;
        EXPECT_EQ(corners[i], corners[i + 3]);
        const double cell = 50 * (corner[1] * 4 + 200) + corner[0] / 0.1875 + 25;
        digest = digest * 31 + static_cast<unsigned>(cell);
    }
    return digest;
}

} // namespace

TEST_F(Ground, CatchesInHolesButNotOnMounds) {
    const std::vector<Hole> pit = {{0, 0, 30, 100}}, mounds = {{0, 0, 30, -100}, {600, 0, 30, 0}};
    const std::vector<Hole> wideFirst = {{0, 0, 60, 10}, {10, 0, 30, 90}};
    const std::vector<Hole> wideSecond = {wideFirst[1], wideFirst[0]};
    const struct {
        const std::vector<Hole>& holes;
        float x, y, expected; // the width of the hole, -1 near one, 0 clear of all
    } cases[] = {{pit, 0, 45, 30},        {pit, 30, 30, 30},     {pit, 0, 46, -1},
                 {pit, -249, 0, -1},      {pit, 251, 0, 0},      {mounds, 0, 0, 0},
                 {mounds, 600, 0, 0},     {wideFirst, 5, 0, 60}, {wideSecond, 5, 0, 30},
                 {wideSecond, -80, 0, 60}};
    for (const auto& c : cases) {
        make(c.holes);
        EXPECT_EQ(level.holeAt(c.x, c.y), c.expected) << c.x << ' ' << c.y;
    }
}

TEST_F(Ground, HasTheFieldsExactHeightAtEveryVertex) {
    std::vector<Hole> holes = {{0, 0, 64, 1e8F}, {3, -5, 0.1F, -1e8F}};
    for (int i = 0; i < 41; ++i) {
        const auto n = static_cast<float>(i);
        holes.push_back({std::sin(n) * 700, n * 290 - 5900, 20 + n / 3, 100 * std::cos(n)});
    }
    make(holes);
    for (const Vector3& point : std::span(level.groundPoints.get(), groundVertices)) {
        ASSERT_EQ(point.z, level.heightAt(point.x, point.y)) << point.x << ' ' << point.y;
    }
    make({{0, 0, 64, 1e8F}, {0, 0, 64, 0.5F}, {0, 0, 64, -1e8F}});
    EXPECT_EQ(level.heightAt(0, 0), 0.5F); // a small hole beside enormous ones
}

TEST_F(Ground, IsDrawnCellByCellInFourQuadrants) {
    const View views[] = {
        {"settled", {0, -400, -350}, -0.8519663F, 0, false, 2637, 2099976495U},
        {"far sight", {0, -400, -350}, -1.2F, 0, true, 9721, 768954367U},
        {"to the horizon", {0, -400, -350}, -1.2F, 0, false, 2959, 1625546177U},
        {"turned far", {-600, -1000, -350}, -0.9F, 0.6F, false, 2138, 2392473862U},
        {"gliding in", {0, -8800, -6000}, -0.4F, 0, false, 2989, 1992891916U},
        {"at the end", {0, 5900, -350}, -0.85F, 0, false, 30, 2532102151U},
        {"beyond the left edge", {-1000, 0, -350}, -0.85F, 0, false, 1140, 2681769415U},
        {"beyond the right edge", {900, 0, -350}, -0.85F, 0, false, 1282, 383063322U},
    };
    make({{100, 0, 60, 100}, {-200, 400, 90, -80}, {0, -5600, 40, 60}});
    for (const View& view : views) {
        SCOPED_TRACE(view.name);
        viewFrame.set(view.eye, view.pitch, view.yaw, view.yaw);
        machine.drawn.clear();
        EXPECT_EQ(level.drawGround(viewFrame, view.farSight, true), view.cells * 2);
        EXPECT_EQ(digestOfCells(), view.digest);
        const GlCalls corners = only({"glTexCoord2f", "glVertex3f"});
        for (std::size_t i = 0; i < corners.size(); i += 2) { // the texture is fixed to the ground
            const double column = corners[i].numbers[0] / 0.1875 + 25,
                         row = corners[i].numbers[1] * 4 + 200;
            const Vector3 point(float(column - 25) * 30, float(row - 200) * 30,
                                level.heightAt(float(column - 25) * 30, float(row - 200) * 30));
            const Vector3 q = viewFrame.rotation * (point - view.eye);
            ASSERT_EQ(corners[i + 1],
                      GlCall("glVertex3f", q.x * 1.25 / q.z, q.y * 1.666667 / q.z, 1 / q.z));
        }
    }
}
