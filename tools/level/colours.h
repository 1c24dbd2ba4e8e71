// How the colours of the loaded level look in the game: fog, marble and ground.
#pragma once

#include <cstdint>

struct Level;

// Returns the nearest colour, 0xRRGGBB, that a display of 16 bits (5, 6 and 5 for red, green and
// blue) shows exactly. With any other fog the cleared sky and the ground in full fog may be rounded
// to different values, and far hills show as silhouettes.
std::uint32_t nearestInSixteenBits(std::uint32_t colour);

// Returns how many times brighter the marble's disc is than the ground around it, or the ground
// than the disc: the ratio of their mean luminances, at least 1. Both are as far from the eye as
// when the marble rolls, and in fog.
double marbleContrast(const Level& course);
