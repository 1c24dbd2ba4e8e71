// What is painted on the grounds: each function gives the light at a place of a tile of 160 x 120
// world units, x across the course and y along it. All are seamless and know no light: tiles that
// look raised are painted so.
#pragma once

#include "art/pictures/canvas.h"

// Laid floors (ground_tiles.cpp).
Colour gridPattern(double x, double y);    // glowing lines on a two-tone checker
Colour emberPattern(double x, double y);   // the same in amber on wine
Colour hexagonPattern(double x, double y); // enamelled six-sided tiles
Colour plankPattern(double x, double y);   // boards laid across the course
Colour scalePattern(double x, double y);   // overlapping round scales

// Grown and broken grounds (ground_stones.cpp).
Colour pavingPattern(double x, double y); // rounded stones in moss
Colour icePattern(double x, double y);    // floes with bright cracks
Colour lavaPattern(double x, double y);   // cooled plates over a glow

// Drawn grounds (ground_drawings.cpp).
Colour sandPattern(double x, double y);    // raked rings around stones
Colour circuitPattern(double x, double y); // copper traces and lit pads
Colour ribbonPattern(double x, double y);  // slanting ribbons of sweets' colours
