// The ground's textures: seamless tiles and their mip chains.
//
// The game does not light the ground, and fog hides its far end. Only the texture shows slope and
// speed, so each has a bold structure of 20 to 60 units that is still visible at the 8 x 8 level.
// Relief is painted.
#pragma once

#include <vector>

#include "art/pictures/image.h"

inline constexpr double tileWidth = 160.0;  // world units that a tile covers across the course
inline constexpr double tileLength = 120.0; // and along it

// Returns the light of a pattern at a place of the tile: world units, x across the course, y along
// it.
using GroundPattern = Colour(double x, double y);

// The patterns (ground_patterns.cpp).
GroundPattern gridPattern;    // glowing lines on a two-tone checker
GroundPattern emberPattern;   // the same in amber on wine
GroundPattern hexagonPattern; // enamelled six-sided tiles
GroundPattern plankPattern;   // boards laid across the course
GroundPattern scalePattern;   // overlapping round scales
GroundPattern circuitPattern; // copper traces and lit pads
GroundPattern ribbonPattern;  // slanting ribbons in candy colours
GroundPattern sandPattern;    // raked rings around stones
GroundPattern pavingPattern;  // rounded stones in moss
GroundPattern icePattern;     // floes with bright cracks
GroundPattern lavaPattern;    // cooled plates over a glow

// Returns all mip levels, filtered in linear light. The top row is the far end of the tile: y grows
// upwards, as in the bitmap files and in OpenGL.
std::vector<Image> groundMipChain(GroundPattern* pattern);
