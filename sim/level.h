// The level being played: the ground that its holes make, its colours, its texture, its mesh.
//
// The ground is not stored as a surface: each hole adds a soft well (or, with a negative depth, a
// mound) to a field that is summed for every query. Lengths are world units, heights are depths (z
// points down). sim/course.h has the edges of the course.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "sim/vector.h"

struct Marble;
struct ViewFrame;

// One hole of the ground, as the level file gives it. The default makes no well.
struct Hole {
    float x = 0.0F;     // centre, world units
    float y = 0.0F;     // centre, world units
    float width = 1.0F; // softening length, above 0
    float depth = 0.0F; // height that it adds at its centre; only positive depths catch the marble
};

// A hole catches the marble within this distance of its centre, in widths.
inline constexpr double catchRadiusInWidths = 1.5;

// A point is near a hole (holeAt) within this distance of its centre, in world units.
inline constexpr float nearHole = 250.0F;

// The ground mesh: vertex (column c, row r) has the index r * groundColumns + c and is at
// x = (c - groundCentreColumn) * groundSpacing, y = (r - groundCentreRow) * groundSpacing.
inline constexpr int groundColumns = 50;
inline constexpr int groundRows = 400;
inline constexpr int groundVertices = groundColumns * groundRows;
inline constexpr int groundCentreColumn = 25; // the column at x = 0
inline constexpr int groundCentreRow = 200;   // the row at y = 0
inline constexpr int groundSpacing = 30;      // world units between neighbours
inline constexpr double spacingsPerUnit = 1.0 / groundSpacing;

inline constexpr int groundTextureLevels = 8; // mip levels 128 x 128 down to 1 x 1
inline constexpr int groundTextureSize = 128; // pixels a side of level 0

// There is one object for the whole run; load replaces its contents at each level start.
struct Level {
    std::int32_t holeCount = 0;
    std::unique_ptr<Hole[]> holes;
    std::unique_ptr<Vector3[]> groundPoints;       // world position of every vertex
    std::unique_ptr<Vector3[]> groundScreen;       // scratch of drawGround
    std::unique_ptr<Vector3[]> groundTexCoords;    // s and t of every vertex; the third is not set
    std::uint32_t fogColourCode = 0;               // 0xRRGGBB as the file gives it
    float fogColour[4] = {0.0F, 0.0F, 0.0F, 0.0F}; // the same as red, green, blue in 0..1, alpha 1
    std::uint32_t marbleColourCode = 0;            // 0xRRGGBB
    std::uint8_t texturePixels[groundTextureLevels][groundTextureSize * groundTextureSize * 3] = {};

    // The mesh (sim/ground_mesh.cpp).

    Level();
    ~Level();

    // Releases mesh and holes: the ground is flat at height 0, and nothing is drawn.
    void clearGround();

    // Replaces the holes by `count` default ones. Returns false, with no holes, when there is no
    // memory for them.
    bool makeHoles(std::int32_t count);

    // Builds the mesh from the holes. Returns false when there is no memory for it.
    bool buildMesh();

    std::span<Hole> allHoles() const { return {holes.get(), static_cast<std::size_t>(holeCount)}; }

    std::uint32_t getFogColourCode() const { return fogColourCode; }

    // The ground field (sim/ground_field.cpp). Each query sums over all holes; x and y are world
    // units. Where there are no holes the ground is flat at height 0.

    // Returns the height: the sum of depth * width / sqrt(distance^2 + width^2) over the holes.
    float heightAt(float x, float y) const;

    // Writes heightAt(x, y) of every y to `heights`, which is as long; at most groundRows. Equal to
    // the last bit, but faster.
    void heightsAlong(float x, std::span<const float> ys, std::span<float> heights) const;

    // Returns the width of the first hole of positive depth that has the point within its catch
    // radius; otherwise -1 when the centre of a hole of positive depth is less than nearHole away;
    // otherwise 0.
    float holeAt(float x, float y) const;

    // Returns the upward unit normal; its z is negative.
    Vector3 normalAt(float x, float y) const;

    // Returns the direction in which a marble would roll, as a unit vector half-way between the
    // normal and straight down; (0, 0, 0) on flat ground.
    Vector3 downhillAt(float x, float y) const;

    // Return the unit tangents of the ground towards +x and +y.
    Vector3 tangentXAt(float x, float y) const;
    Vector3 tangentYAt(float x, float y) const;

    // The file (app/resources.cpp; its grammar: data/level_file.h).

    // Reads a level file: gives the marble its colour, makes the ground texture and builds the
    // mesh. Colours and texture that the file does not set stay those of the level before. Returns
    // false when the file is refused, after a message box for the causes that have one.
    bool load(const char* fileName, Marble& playerMarble);

    // The drawing (render/ground.cpp).

    // Draws the part of the ground that is in view; without far sight only a number of rows ahead
    // of the eye. Needs a current OpenGL context, identity matrices and a depth buffer cleared to
    // 0. Returns the number of triangles drawn.
    std::int32_t drawGround(const ViewFrame& view, bool farSight, bool fogOn);
};

extern Level level;
