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

constexpr double lookAhead = 400.0; // world units ahead of the eye at which the traversal starts
constexpr int rowsInSight = 60;     // beyond the start row, unless far sight is on

// The focal length of 400 pixels over half the screen's width and height. focalY is defined with
// these decimals, not as 5/3.
constexpr double focalX = 1.25;
constexpr double focalY = 1.666667;

// Fog is measured in inverse depth, so its start is the larger value.
constexpr GLfloat fogStart = 0.0025F;                          // depth 400
constexpr GLfloat fogEnd = static_cast<GLfloat>(1.0 / 1800.0); // depth 1800

// The state of one call of drawGround.
struct GroundTraversal {
    Level& ground;
    Vector3 eye;
    Matrix3 rotation;
    int startRow;
    int startColumn;
    int lastRow;
    std::int32_t triangles = 0;
    std::bitset<groundVertices> projected = {};
};

// The direction of a scan from the start cell.
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
void project(GroundTraversal& traversal, std::size_t index) {
    if (traversal.projected[index]) { return; }
    const Vector3 q = traversal.rotation * (traversal.ground.groundPoints[index] - traversal.eye);
    traversal.ground.groundScreen[index].set(static_cast<float>(q.x * focalX / q.z),
                                             static_cast<float>(q.y * focalY / q.z),
                                             static_cast<float>(1.0 / q.z));
    traversal.projected[index] = true;
}

void projectCorners(GroundTraversal& traversal, int row, int column) {
    project(traversal, indexOf(row, column));
    project(traversal, indexOf(row + 1, column));
    project(traversal, indexOf(row + 1, column + 1));
    project(traversal, indexOf(row, column + 1));
}

// Returns whether the side edge of the cell that the scan moves towards is still on the screen.
bool columnScanContinues(const GroundTraversal& traversal, Quadrant quadrant, int row, int column) {
    const Vector3* screen = traversal.ground.groundScreen.get();
    if (quadrant.columnStep > 0) {
        return screen[indexOf(row + 1, column + 1)].x < 1.0F ||
               screen[indexOf(row, column + 1)].x < 1.0F;
    }
    return screen[indexOf(row, column)].x > -1.0F || screen[indexOf(row + 1, column)].x > -1.0F;
}

// Returns the same for its upper or lower edge.
bool rowScanContinues(const GroundTraversal& traversal, Quadrant quadrant, int row, int column) {
    const Vector3* screen = traversal.ground.groundScreen.get();
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

void drawTriangle(GroundTraversal& traversal, std::size_t first, std::size_t second,
                  std::size_t third) {
    glBegin(GL_TRIANGLES);
    putVertex(traversal.ground, first);
    putVertex(traversal.ground, second);
    putVertex(traversal.ground, third);
    glEnd();
    ++traversal.triangles;
}

void drawCell(GroundTraversal& traversal, int row, int column) {
    const std::size_t corner = indexOf(row, column);
    const std::size_t opposite = indexOf(row + 1, column + 1);
    drawTriangle(traversal, corner, indexOf(row + 1, column), opposite);
    drawTriangle(traversal, corner, opposite, indexOf(row, column + 1));
}

// Draws the cells of one row from the start column outward, up to and including the first that
// lies completely beyond the screen's side. Returns whether the row scan continues.
bool traverseRow(GroundTraversal& traversal, Quadrant quadrant, int row) {
    int column = quadrant.columnStep > 0 ? traversal.startColumn : traversal.startColumn - 1;
    bool nextRow = false;
    bool nextColumn = true;
    while (nextColumn && column >= 0 && column <= lastCellColumn) {
        projectCorners(traversal, row, column);
        nextColumn = columnScanContinues(traversal, quadrant, row, column);
        nextRow = rowScanContinues(traversal, quadrant, row, column) || nextRow;
        drawCell(traversal, row, column);
        column += quadrant.columnStep;
    }
    return nextRow;
}

// Draws the rows of one quadrant from the start outward, up to and including the first that lies
// completely beyond the upper or lower edge.
void traverseQuadrant(GroundTraversal& traversal, Quadrant quadrant) {
    int row = quadrant.rowStep > 0 ? traversal.startRow : traversal.startRow - 1;
    while (row >= 0 && row <= traversal.lastRow && traverseRow(traversal, quadrant, row)) {
        row += quadrant.rowStep;
    }
}

// Returns the column under the eye, or the nearest one when the eye is off the mesh.
int startColumnFor(const Vector3& eye) {
    const double column = eye.x * spacingsPerUnit + groundCentreColumn;
    if (!(column > 0.0)) { return 0; }
    return column < groundColumns - 1 ? static_cast<int>(column) : groundColumns - 1;
}

// Returns the row under the point lookAhead in front of the eye: that of the marble when the camera
// has settled.
int startRowFor(const Vector3& eye) {
    const double row = (eye.y + lookAhead) * spacingsPerUnit + groundCentreRow;
    if (!(row > 0.0)) { return 0; }
    return row < lastCellRow ? static_cast<int>(row) : lastCellRow;
}

} // namespace

std::int32_t Level::drawGround(const ViewFrame& view, bool farSight, bool fogOn) {
    setGroundState(*this, fogOn);
    if (groundTexCoords == nullptr) { // a level failed to load, and the program is about to end
        glFlush();
        return 0;
    }
    const Vector3 eye = view.getPosition();
    const int startRow = startRowFor(eye);
    const bool endInSight = farSight || startRow + rowsInSight > lastCellRow;
    const int lastRow = endInSight ? lastCellRow : startRow + rowsInSight;
    GroundTraversal traversal = {*this,  eye, view.getRotation(), startRow, startColumnFor(eye),
                                 lastRow};

    traverseQuadrant(traversal, {+1, +1});
    traverseQuadrant(traversal, {+1, -1});
    traverseQuadrant(traversal, {-1, -1});
    traverseQuadrant(traversal, {-1, +1});
    glFlush();
    return traversal.triangles;
}
