// The ground on the screen: OpenGL's state, and the walk over the cells that can be seen.
#include <GL/gl.h>
#include <algorithm>
#include <cmath>

#include "fakes/play.h"
#include "sim/view_frame.h"

namespace {

struct Cell {
    int row, column;
    bool operator<(const Cell& o) const { return row * 50 + column < o.row * 50 + o.column; }
};

// The eye and its angles, as the camera holds them.
struct View {
    const char* name;
    Vector3 eye;
    double pitch, yaw;
    bool farSight;
};

struct GroundOnScreen : Story {
    GroundOnScreen() {
        writeMipChain("ground", groundTextureSize, groundTextureLevels);
        writeFile("a.map", levelText({{100, 0, 60, 100}, {-200, 400, 90, -80}, {0, -5600, 40, 60}},
                                     "fogcolor= 0xFF8000"));
        EXPECT_TRUE(level.load("a.map", marble));
    }

    static int draw(const View& view, bool fogOn = true) {
        ViewFrame frame;
        const auto yaw = static_cast<float>(view.yaw);
        frame.set(view.eye, static_cast<float>(view.pitch), yaw, yaw);
        machine.drawn.clear();
        return level.drawGround(frame, view.farSight, fogOn);
    }
};

// Where a vertex of the mesh lies on the screen, with its inverse depth, in double precision.
GlCall project(const View& view, int row, int column) {
    const Vector3 p = level.groundPoints[static_cast<std::size_t>(row * 50 + column)];
    const double x = p.x - static_cast<double>(view.eye.x),
                 y = p.y - static_cast<double>(view.eye.y),
                 z = p.z - static_cast<double>(view.eye.z);
    const double c = std::cos(view.yaw), s = std::sin(view.yaw);
    const double x1 = c * x + s * y, y1 = c * y - s * x;   // about z
    const double x2 = c * x1 - s * z, z2 = s * x1 + c * z; // about y
    const double y3 = std::cos(view.pitch) * y1 + std::sin(view.pitch) * z2;
    const double z3 = std::cos(view.pitch) * z2 - std::sin(view.pitch) * y1;
    return call("glVertex3f", x2 * 1.25 / z3, y3 * 1.666667 / z3, 1 / z3);
}

// The cells that a view visits, in order: each quadrant's rows from the start outward, as long as
// the row before reached onto the screen, and each row's cells as long as the one before did.
std::vector<Cell> expectedCells(const View& view) {
    const auto x = [&](int row, int column) { return project(view, row, column).numbers[0]; };
    const auto y = [&](int row, int column) { return project(view, row, column).numbers[1]; };
    const int column0 = std::clamp(static_cast<int>(view.eye.x / 30 + 25), 0, 49);
    const int row0 = std::clamp(static_cast<int>((view.eye.y + 400) / 30 + 200), 0, 398);
    const int farthest = view.farSight ? 398 : std::min(398, row0 + 60);
    std::vector<Cell> cells;
    const auto quadrant = [&](bool ahead, bool right) {
        bool rowSeen = true;
        for (int r = ahead ? row0 : row0 - 1; rowSeen && r >= 0 && r <= farthest;
             r += ahead ? 1 : -1) {
            rowSeen = false;
            bool cellSeen = true;
            for (int c = right ? column0 : column0 - 1; cellSeen && c >= 0 && c <= 48;
                 c += right ? 1 : -1) {
                cells.push_back({r, c});
                cellSeen = right ? std::min(x(r, c + 1), x(r + 1, c + 1)) < 1
                                 : std::max(x(r, c), x(r + 1, c)) > -1;
                rowSeen = rowSeen || (ahead ? std::min(y(r + 1, c), y(r + 1, c + 1)) < 1
                                            : std::max(y(r, c), y(r, c + 1)) > -1);
            }
        }
    };
    quadrant(true, true);
    quadrant(true, false);
    quadrant(false, false);
    quadrant(false, true);
    return cells;
}

// The calls that draw a cell's two triangles.
void appendCell(GlCalls& calls, const View& view, const Cell& cell) {
    constexpr int corners[2][3][2] = {{{0, 0}, {1, 0}, {1, 1}}, {{0, 0}, {1, 1}, {0, 1}}};
    for (const auto& triangle : corners) {
        calls.emplace_back("glBegin", GL_TRIANGLES);
        for (const auto& corner : triangle) {
            const int row = cell.row + corner[0], column = cell.column + corner[1];
            calls.emplace_back("glTexCoord2f", (column - 25) * 0.1875, (row - 200) * 0.25);
            calls.push_back(project(view, row, column));
        }
        calls.emplace_back("glEnd");
    }
}

const View settled = {"settled", {0, -400, -350}, -0.8519663, 0, false};

} // namespace

TEST_F(GroundOnScreen, IsDrawnCellByCellInFourQuadrants) {
    const View views[] = {
        settled,
        {"far sight", {0, -400, -350}, -1.2, 0, true},
        {"to the horizon", {0, -400, -350}, -1.2, 0, false},
        {"turned", {-300, -1000, -350}, -0.9, 0.12, false},
        {"turned far", {-600, -1000, -350}, -0.9, 0.6, false},
        {"gliding in", {0, -8800, -6000}, -0.4, 0, false},
        {"before the start", {100, -6500, -350}, -0.85, 0, false},
        {"at the end", {0, 5900, -350}, -0.85, 0, false},
        {"at the left edge", {-745, 0, -350}, -0.85, 0, false},
        {"at the right edge", {735, 0, -350}, -0.85, 0, false},
        {"beyond the left edge", {-1000, 0, -350}, -0.85, 0, false},
        {"beyond the right edge", {900, 0, -350}, -0.85, 0, false},
    };
    for (const View& view : views) {
        SCOPED_TRACE(view.name);
        const int triangles = draw(view);
        const std::vector<Cell> cells = expectedCells(view);
        GlCalls expected;
        for (const Cell& cell : cells) {
            appendCell(expected, view, cell);
        }
        expected.emplace_back("glFlush");
        const GlCalls actual = from(drawn(), call("glBegin", GL_TRIANGLES));
        EXPECT_EQ(triangles, 2 * static_cast<int>(cells.size()));
        EXPECT_EQ(difference(actual, expected), "");
        EXPECT_EQ(std::set<Cell>(cells.begin(), cells.end()).size(), cells.size());
    }
}

TEST_F(GroundOnScreen, SetsItsStateFirst) {
    const GlCalls always = calls(
        on(GL_DEPTH_TEST), call("glDepthFunc", GL_GREATER), on(GL_CULL_FACE),
        call("glCullFace", GL_FRONT), on(GL_TEXTURE_2D), call("glBindTexture", GL_TEXTURE_2D, 1),
        call("glTexEnvf", GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_DECAL), off(GL_BLEND));
    const GlCalls fog = calls(
        on(GL_FOG), call("glHint", GL_FOG_HINT, GL_NICEST),
        call("glFogfv", GL_FOG_COLOR, 1, 128 / 255.0, 0, 1), call("glFogf", GL_FOG_MODE, GL_LINEAR),
        call("glFogf", GL_FOG_START, 1 / 400.0), call("glFogf", GL_FOG_END, 1 / 1800.0));
    const GlCall firstTriangle = call("glBegin", GL_TRIANGLES);
    for (int frame = 0; frame < 2; ++frame) {
        draw(settled, true);
        EXPECT_EQ(upTo(drawn(), firstTriangle), always + fog);
        draw(settled, false);
        EXPECT_EQ(upTo(drawn(), firstTriangle), always + calls(off(GL_FOG)));
    }
    level.groundTexCoords.reset(); // its file was refused: there is nothing but the state
    EXPECT_EQ(draw(settled, true), 0);
    EXPECT_EQ(drawn(), always + fog + calls(call("glFlush")));
}
