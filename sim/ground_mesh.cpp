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

void placeVertex(Level& ground, int column, int row) {
    const auto index = static_cast<std::size_t>((row + groundCentreRow) * groundColumns + column +
                                                groundCentreColumn);
    const float x = static_cast<float>(column * groundSpacing);
    const float y = static_cast<float>(row * groundSpacing);
    ground.groundPoints[index].set(x, y, ground.heightAt(x, y));
    ground.groundTexCoords[index][0] = static_cast<float>(column * texturePerColumn);
    ground.groundTexCoords[index][1] = static_cast<float>(row * texturePerRow);
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
    for (int c = 0; c < groundColumns; ++c) {
        for (int r = 0; r < groundRows; ++r) {
            placeVertex(*this, c - groundCentreColumn, r - groundCentreRow);
        }
    }
    return true;
}
