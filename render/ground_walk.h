// The cells of the ground that are in view, and where their corners are on the screen. Calls no
// OpenGL: render/ground.cpp draws what is found here.
#pragma once

#include <cstddef>
#include <cstdint>

#include "sim/level.h"

struct ViewFrame;

// Cell (row, column) lies between its own vertex and the one a row and a column further. It has the
// index of its own vertex.
inline constexpr int lastCellRow = groundRows - 2;
inline constexpr int lastCellColumn = groundColumns - 2;

inline constexpr std::size_t groundIndex(int row, int column) {
    return static_cast<std::size_t>(row * groundColumns + column);
}

// Cells in the order in which they are drawn, each at most once. Too large for the stack of a page
// in a browser.
struct GroundCells {
    std::int32_t count = 0;
    std::uint16_t indices[(lastCellRow + 1) * (lastCellColumn + 1)]; // `count` of them are set
};

// Returns NDC x and y and the inverse depth of a vertex whose offset from the eye is given, in
// world axes.
inline Vector3 projectGround(const Matrix3& rotation, const Vector3& fromEye) {
    // The focal length of 400 pixels over half the screen's width and height. focalY is defined
    // with these decimals, not as 5/3.
    constexpr double focalX = 1.25;
    constexpr double focalY = 1.666667;
    const Vector3 q = rotation * fromEye;
    return {static_cast<float>(q.x * focalX / q.z), static_cast<float>(q.y * focalY / q.z),
            static_cast<float>(1.0 / q.z)};
}

// Finds the cells in view: starts under a point ahead of the eye and scans outward in four
// quadrants, row by row, up to and including the first cell that is completely beyond the edge of
// the screen that the scan moves towards. Without far sight only a number of rows ahead of the
// start is scanned. Writes the corners of those cells to `ground.groundScreen`: NDC x and y, and
// the inverse depth; other entries keep what they held. `ground` must have a mesh.
void walkGround(Level& ground, const ViewFrame& view, bool farSight, GroundCells& cells);
