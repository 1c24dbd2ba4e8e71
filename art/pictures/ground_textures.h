// The ground's textures: seamless tiles and their mip chains.
//
// The game does not light the ground, and fog hides its far end. Only the texture shows slope and
// speed, so each has a bold structure of 20 to 60 units that is still visible at the 8 x 8 level,
// and a painted relief, lit from above and left.
#pragma once

#include <vector>

#include "art/pictures/image.h"

inline constexpr double tileWidth = 160.0;  // world units that a tile covers across the course
inline constexpr double tileLength = 120.0; // and along it

// What a pattern has at one place.
struct Spot {
    Colour paint;
    double height; // world units; its slope is the relief
};

// Returns the spot at a place of the tile: world units, x across the course, y along it.
using GroundPattern = Spot(double x, double y);

// The patterns (ground_patterns.cpp).
GroundPattern tilePattern;       // cream and orange ceramic, eight-sided, with blue dots
GroundPattern snowPattern;       // quilted snow
GroundPattern terracottaPattern; // bricks from rose to ochre
GroundPattern sandPattern;       // raked rings around shells
GroundPattern hexagonPattern;    // turquoise tiles in white joints
GroundPattern scalePattern;      // overlapping round scales, lime to yellow
GroundPattern moonPattern;       // large lilac slabs with small pits
GroundPattern circuitPattern;    // copper traces on mint
GroundPattern lavaPattern;       // amber plates over a glow
GroundPattern discoPattern;      // lit panels in many hues
GroundPattern candyPattern;      // pink and white sweets

// Returns all mip levels, filtered in linear light. The top row is the far end of the tile: y grows
// upwards, as in the bitmap files and in OpenGL.
std::vector<Image> groundMipChain(GroundPattern* pattern);
