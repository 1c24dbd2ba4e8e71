#include <bitset>
#include <cstddef>

#include <GL/gl.h>

#include "render/textures.h"
#include "sim/level.h"
#include "sim/view_frame.h"

namespace {

// Cells: cell (row, column) lies between its own vertex and the one a row and a column further.
constexpr int lastCellRow = groundRows - 2;
constexpr int lastCellColumn = groundColumns - 2;

constexpr double lookAhead = 400.0; // world units from the eye to where the traversal starts
constexpr int rowsInSight = 60;     // beyond the start row, unless far sight is on

// The focal length of 400 pixels over half the screen's width and height; the latter is meant with
// these decimals, not as 5/3.
constexpr double focalX = 1.25;
constexpr double focalY = 1.666667;

// Fog is measured in inverse depth, so it starts at a larger value than it ends.
constexpr GLfloat fogStart = 0.0025F;                          // depth 400
constexpr GLfloat fogEnd = static_cast<GLfloat>(1.0 / 1800.0); // depth 1800

// One call of drawGround.
struct GroundWalk {
    Level& ground;
    Vector3 eye;
    Matrix3 rotation;
    int startRow;
    int startColumn;
    int lastRow;
    std::int32_t triangles = 0;
    std::bitset<groundVertices> projected = {};
};

// Where a scan goes: which way it steps, and how far.
struct Quadrant {
    int rowStep;    // +1 ahead, -1 behind
    int columnStep; // +1 right, -1 left
};

std::size_t indexOf(int row, int column) {
    return static_cast<std::size_t>(row * groundColumns + column);
}

void setGroundState(const Level& ground, bool fogOn) {
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_GREATER);
    glEnable(GL_CULL_FACE);
    glCullFace(GL_FRONT);
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, groundTexture);
    glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_DECAL);
    glDisable(GL_BLEND);
    if (!fogOn) {
        glDisable(GL_FOG);
        return;
    }
    glEnable(GL_FOG);
    glHint(GL_FOG_HINT, GL_NICEST);
    glFogfv(GL_FOG_COLOR, ground.fogColour);
    glFogf(GL_FOG_MODE, GL_LINEAR);
    glFogf(GL_FOG_START, fogStart);
    glFogf(GL_FOG_END, fogEnd);
}

// Projects a vertex on its first use in this call: NDC x and y, and the inverse depth.
void project(GroundWalk& walk, std::size_t index) {
    if (walk.projected[index]) { return; }
    const Vector3 q = walk.rotation * (walk.ground.groundPoints[index] - walk.eye);
    walk.ground.groundScreen[index].set(static_cast<float>(q.x * focalX / q.z),
                                        static_cast<float>(q.y * focalY / q.z),
                                        static_cast<float>(1.0 / q.z));
    walk.projected[index] = true;
}

void projectCorners(GroundWalk& walk, int row, int column) {
    project(walk, indexOf(row, column));
    project(walk, indexOf(row + 1, column));
    project(walk, indexOf(row + 1, column + 1));
    project(walk, indexOf(row, column + 1));
}

// Whether the side edge of the cell that the scan moves towards is still on the screen.
bool columnScanGoesOn(const GroundWalk& walk, Quadrant quadrant, int row, int column) {
    const Vector3* screen = walk.ground.groundScreen.get();
    if (quadrant.columnStep > 0) {
        return screen[indexOf(row + 1, column + 1)].x < 1.0F ||
               screen[indexOf(row, column + 1)].x < 1.0F;
    }
    return screen[indexOf(row, column)].x > -1.0F || screen[indexOf(row + 1, column)].x > -1.0F;
}

// The same for its upper or lower edge.
bool rowScanGoesOn(const GroundWalk& walk, Quadrant quadrant, int row, int column) {
    const Vector3* screen = walk.ground.groundScreen.get();
    if (quadrant.rowStep > 0) {
        return screen[indexOf(row + 1, column)].y < 1.0F ||
               screen[indexOf(row + 1, column + 1)].y < 1.0F;
    }
    return screen[indexOf(row, column)].y > -1.0F || screen[indexOf(row, column + 1)].y > -1.0F;
}

void putVertex(const Level& ground, std::size_t index) {
    const Vector3& texture = ground.groundTexCoords[index];
    const Vector3& screen = ground.groundScreen[index];
    glTexCoord2f(texture[0], texture[1]);
    glVertex3f(screen.x, screen.y, screen.z);
}

void drawTriangle(GroundWalk& walk, std::size_t first, std::size_t second, std::size_t third) {
    glBegin(GL_TRIANGLES);
    putVertex(walk.ground, first);
    putVertex(walk.ground, second);
    putVertex(walk.ground, third);
    glEnd();
    ++walk.triangles;
}

void drawCell(GroundWalk& walk, int row, int column) {
    const std::size_t corner = indexOf(row, column);
    const std::size_t opposite = indexOf(row + 1, column + 1);
    drawTriangle(walk, corner, indexOf(row + 1, column), opposite);
    drawTriangle(walk, corner, opposite, indexOf(row, column + 1));
}

// Draws the cells of one row from the start column outward, up to and including the first that
// lies wholly beyond the screen's side. Whether the row scan goes on.
bool walkRow(GroundWalk& walk, Quadrant quadrant, int row) {
    int column = quadrant.columnStep > 0 ? walk.startColumn : walk.startColumn - 1;
    bool nextRow = false;
    bool nextColumn = true;
    while (nextColumn && column >= 0 && column <= lastCellColumn) {
        projectCorners(walk, row, column);
        nextColumn = columnScanGoesOn(walk, quadrant, row, column);
        nextRow = rowScanGoesOn(walk, quadrant, row, column) || nextRow;
        drawCell(walk, row, column);
        column += quadrant.columnStep;
    }
    return nextRow;
}

// Draws the rows of one quadrant from the start outward, up to and including the first that lies
// wholly beyond the upper or lower edge.
void walkQuadrant(GroundWalk& walk, Quadrant quadrant) {
    int row = quadrant.rowStep > 0 ? walk.startRow : walk.startRow - 1;
    while (row >= 0 && row <= walk.lastRow && walkRow(walk, quadrant, row)) {
        row += quadrant.rowStep;
    }
}

// The column under the eye. Beyond the sides of the course the walk starts at its edge.
int startColumnFor(const Vector3& eye) {
    const double column = eye.x * spacingsPerUnit + groundCentreColumn;
    if (!(column > 0.0)) { return 0; }
    return column < groundColumns - 1 ? static_cast<int>(column) : groundColumns - 1;
}

// The row under the point that the eye looks at; with a settled camera the marble's.
int startRowFor(const Vector3& eye) {
    const double row = (eye.y + lookAhead) * spacingsPerUnit + groundCentreRow;
    if (!(row > 0.0)) { return 0; }
    return row < lastCellRow ? static_cast<int>(row) : lastCellRow;
}

} // namespace

std::int32_t Level::drawGround(const ViewFrame& view, bool farSight, bool fogOn) {
    setGroundState(*this, fogOn);
    if (!groundTexCoords) { // a level failed to load, and the program is about to end
        glFlush();
        return 0;
    }
    const Vector3 eye = view.getPosition();
    const int startRow = startRowFor(eye);
    const bool endInSight = farSight || startRow + rowsInSight > lastCellRow;
    const int lastRow = endInSight ? lastCellRow : startRow + rowsInSight;
    GroundWalk walk = {*this, eye, view.getRotation(), startRow, startColumnFor(eye), lastRow};

    walkQuadrant(walk, {+1, +1});
    walkQuadrant(walk, {+1, -1});
    walkQuadrant(walk, {-1, -1});
    walkQuadrant(walk, {-1, +1});
    glFlush();
    return walk.triangles;
}
