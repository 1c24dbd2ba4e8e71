#include <array>
#include <cstddef>
#include <new>

#include "sim/level.h"

namespace {

// The texture repeats every 5 1/3 columns and every 4 rows.
constexpr double texturePerColumn = 0.1875;
constexpr double texturePerRow = 0.25;

bool allocateVertices(std::unique_ptr<Vector3[]>& vertices) {
    vertices.reset(new (std::nothrow) Vector3[groundVertices]);
    return vertices != nullptr;
}

std::array<float, groundRows> rowPositions() {
    std::array<float, groundRows> ys = {};
    for (int r = 0; r < groundRows; ++r) {
        ys[static_cast<std::size_t>(r)] = static_cast<float>((r - groundCentreRow) * groundSpacing);
    }
    return ys;
}

void placeColumn(Level& ground, int column, const std::array<float, groundRows>& ys) {
    const int fromCentre = column - groundCentreColumn;
    const float x = static_cast<float>(fromCentre * groundSpacing);
    const float s = static_cast<float>(fromCentre * texturePerColumn);
    std::array<float, groundRows> heights = {};
    ground.heightsAlong(x, ys, heights);
    for (int r = 0; r < groundRows; ++r) {
        const auto row = static_cast<std::size_t>(r);
        const std::size_t index = row * groundColumns + static_cast<std::size_t>(column);
        ground.groundPoints[index].set(x, ys[row], heights[row]);
        ground.groundTexCoords[index][0] = s;
        ground.groundTexCoords[index][1] =
            static_cast<float>((r - groundCentreRow) * texturePerRow);
    }
}

} // namespace

Level::Level() = default;

Level::~Level() = default;

void Level::clearGround() {
    groundPoints.reset();
    groundScreen.reset();
    groundTexCoords.reset();
    holes.reset();
    holeCount = 0;
}

bool Level::makeHoles(std::int32_t count) {
    holeCount = 0;
    holes.reset(new (std::nothrow) Hole[static_cast<std::size_t>(count)]);
    if (holes == nullptr) { return false; }
    holeCount = count;
    return true;
}

bool Level::buildMesh() {
    if (!allocateVertices(groundPoints)) { return false; }
    if (!allocateVertices(groundScreen)) { return false; }
    if (!allocateVertices(groundTexCoords)) { return false; }
    const std::array<float, groundRows> ys = rowPositions();
    for (int c = 0; c < groundColumns; ++c) {
        placeColumn(*this, c, ys);
    }
    return true;
}
