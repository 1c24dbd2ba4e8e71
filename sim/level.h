// The level being played: the ground that its holes make, its colours, its texture, its mesh.
//
// The ground is not stored as a surface: each hole adds a soft well (or, with a negative depth, a
// mound) to a field that is summed up for every query. Lengths are world units, heights are depths
// (z points down), and the course spans x -750..720 and y -6000..5970.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "sim/vector.h"

struct Marble;
struct ViewFrame;

// One well of the ground, as the level file gives it; flat until it does.
struct Hole {
    float x = 0.0F;     // centre, world units
    float y = 0.0F;     // centre, world units
    float width = 1.0F; // softening length, above 0; the marble is caught within 1.5 widths
    float depth = 0.0F; // the well's own height at its centre; only positive depths catch
};

inline constexpr double catchRadiusInWidths = 1.5;

// The ground mesh: vertex (column c, row r) has the index r * groundColumns + c and stands at
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

// The level. One object lives for the whole run; load replaces its contents at each level start.
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

    // Releases mesh and holes: the ground is level at height 0, and nothing is drawn.
    void clearGround();

    // Replaces the holes by `count` flat ones. Returns false, with no holes, when there is no
    // memory for them.
    bool makeHoles(std::int32_t count);

    // Builds the mesh from the holes. Returns false when there is no memory for it.
    bool buildMesh();

    std::span<Hole> allHoles() const { return {holes.get(), static_cast<std::size_t>(holeCount)}; }

    std::uint32_t getFogColourCode() const { return fogColourCode; }

    // The ground field (sim/ground_field.cpp). Each query sums over all holes; x and y are world
    // units. Where there are no holes the ground is level at height 0.

    // The height: the sum of depth * width / sqrt(distance^2 + width^2) over the holes.
    float heightAt(float x, float y) const;

    // The width of the first hole of positive depth that has the point within its catch radius;
    // otherwise -1 when a hole of positive depth has its centre less than 250 units away;
    // otherwise 0.
    float holeAt(float x, float y) const;

    // The upward unit normal; its z is negative.
    Vector3 normalAt(float x, float y) const;

    // Where a marble would roll, as a unit vector half-way between the normal and straight down;
    // (0, 0, 0) on level ground.
    Vector3 downhillAt(float x, float y) const;

    // Unit tangents of the ground towards +x and +y.
    Vector3 tangentXAt(float x, float y) const;
    Vector3 tangentYAt(float x, float y) const;

    // The file (app/resources.cpp; its grammar: data/level_file.h).

    // Reads a level file: gives the marble its colour, makes the ground texture and builds the
    // mesh. What the file does not set keeps the value of the level before. Returns false when the
    // file is refused, after a message box for the causes that have one.
    bool load(const char* fileName, Marble& playerMarble);

    // The drawing (render/ground.cpp).

    // Draws the part of the ground that the view can see. Without far sight it ends 60 rows beyond
    // the point 400 units ahead of the eye. Needs a current OpenGL context, identity matrices and a
    // depth buffer cleared to 0. Returns the number of triangles drawn.
    std::int32_t drawGround(const ViewFrame& view, bool farSight, bool fogOn);
};

extern Level level;
