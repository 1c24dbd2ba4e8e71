#include "render/ground_walk.h"

#include <array>

#include "sim/view_frame.h"

namespace {

constexpr double lookAhead = 400.0; // world units ahead of the eye at which the walk starts
constexpr int rowsInSight = 60;     // beyond the start row, unless far sight is on

// The state of one call of walkGround.
struct GroundWalk {
    const Vector3* points; // the ground's, world
    Vector3* screen;       // NDC and inverse depth
    GroundCells& cells;
    Vector3 eye;
    Matrix3 rotation;
    int startRow;
    int startColumn;
    int lastRow;
    std::array<bool, groundVertices> projected = {};
};

// The direction of a scan from the start cell.
struct Quadrant {
    int rowStep;    // +1 ahead, -1 behind
    int columnStep; // +1 right, -1 left
};

// Projects a vertex on its first use in this call.
void project(GroundWalk& walk, std::size_t index) {
    if (walk.projected[index]) { return; }
    walk.screen[index] = projectGround(walk.rotation, walk.points[index] - walk.eye);
    walk.projected[index] = true;
}

// Projects the two vertices of a column that belong to the cells of that row.
void projectPair(GroundWalk& walk, int row, int column) {
    project(walk, groundIndex(row, column));
    project(walk, groundIndex(row + 1, column));
}

// Returns whether the line between the vertices (row, column) and (row + 1, column) is still on the
// screen for a scan to the right (columnStep +1) or to the left.
bool isColumnInSight(const GroundWalk& walk, int columnStep, int row, int column) {
    const float lower = walk.screen[groundIndex(row, column)].x;
    const float upper = walk.screen[groundIndex(row + 1, column)].x;
    return columnStep > 0 ? lower < 1.0F || upper < 1.0F : lower > -1.0F || upper > -1.0F;
}

// Returns the same of the vertices (row, column) and (row, column + 1), for a scan ahead (rowStep
// +1) or back.
bool isRowInSight(const GroundWalk& walk, int rowStep, int row, int column) {
    const float left = walk.screen[groundIndex(row, column)].y;
    const float right = walk.screen[groundIndex(row, column + 1)].y;
    return rowStep > 0 ? left < 1.0F || right < 1.0F : left > -1.0F || right > -1.0F;
}

void addCell(GroundCells& cells, int row, int column) {
    cells.indices[cells.count++] = static_cast<std::uint16_t>(groundIndex(row, column));
}

// Visits the cells of one row from the start column outward. Returns whether the row scan
// continues.
bool walkRow(GroundWalk& walk, Quadrant quadrant, int row) {
    const bool rightward = quadrant.columnStep > 0;
    const int outerRow = quadrant.rowStep > 0 ? row + 1 : row;
    const int lastVertex = rightward ? lastCellColumn + 1 : 0;
    int vertex = walk.startColumn; // the column of vertices that the scan has reached
    bool nextRow = false;
    bool nextColumn = true;
    projectPair(walk, row, vertex);
    while (nextColumn && vertex != lastVertex) {
        vertex += quadrant.columnStep;
        projectPair(walk, row, vertex);
        const int column = rightward ? vertex - 1 : vertex;
        nextColumn = isColumnInSight(walk, quadrant.columnStep, row, vertex);
        nextRow = nextRow || isRowInSight(walk, quadrant.rowStep, outerRow, column);
        addCell(walk.cells, row, column);
    }
    return nextRow;
}

// Visits the rows of one quadrant from the start outward, up to and including the first that is
// completely beyond the upper or lower edge.
void walkQuadrant(GroundWalk& walk, Quadrant quadrant) {
    int row = quadrant.rowStep > 0 ? walk.startRow : walk.startRow - 1;
    while (row >= 0 && row <= walk.lastRow && walkRow(walk, quadrant, row)) {
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

int lastRowFor(int startRow, bool farSight) {
    const bool endInSight = farSight || startRow + rowsInSight > lastCellRow;
    return endInSight ? lastCellRow : startRow + rowsInSight;
}

} // namespace

void walkGround(Level& ground, const ViewFrame& view, bool farSight, GroundCells& cells) {
    const Vector3 eye = view.getPosition();
    const int startRow = startRowFor(eye);
    GroundWalk walk = {ground.groundPoints.get(),
                       ground.groundScreen.get(),
                       cells,
                       eye,
                       view.getRotation(),
                       startRow,
                       startColumnFor(eye),
                       lastRowFor(startRow, farSight)};
    cells.count = 0;
    walkQuadrant(walk, {+1, +1});
    walkQuadrant(walk, {+1, -1});
    walkQuadrant(walk, {-1, -1});
    walkQuadrant(walk, {-1, +1});
}
