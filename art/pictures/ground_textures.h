// The ground's textures: seamless tiles of 128 x 128 texels and their mip chains.
//
// The game lays one tile over 160 world units across the course and 120 along it, puts no light on
// it and lets it end in fog. The texture alone must show the slope and the speed, so every one has
// a bold structure of 20 to 60 units that survives down to the 8 x 8 level.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "art/pictures/canvas.h"

inline constexpr int groundTileSize = 128; // texels a side of level 0
inline constexpr int groundTileLevels = 8;
inline constexpr double tileWidth = 160.0;  // world units, x across the course
inline constexpr double tileLength = 120.0; // world units, y along the course

// The light of a pattern at a place of the tile, in world units; seamless with the tile's size.
using GroundPattern = Colour (*)(double x, double y);

// A ground and the colours that go well with it, 0xRRGGBB.
struct GroundTexture {
    const char* name;
    GroundPattern pattern;
    std::uint32_t fog;    // also the sky
    std::uint32_t marble; // stands out from ground and fog
};

std::span<const GroundTexture> groundTextures();

// The ground of that name; there must be one.
const GroundTexture& groundTextureNamed(const char* name);

// The levels 128 x 128 down to 1 x 1, filtered in linear light. The top row is the far end of the
// tile: y grows towards the top, as in the bitmap files and in OpenGL.
std::vector<Canvas> groundMipChain(GroundPattern pattern);
