// How the colours of the loaded level look in the game: fog, marble and ground.
#pragma once

#include <cstdint>

struct Level;

// Returns the nearest colour, 0xRRGGBB, that a display of 16 bits (5, 6 and 5 for red, green and
// blue) shows exactly. With any other fog the cleared sky and the ground in full fog may be rounded
// to different values, and far hills show as silhouettes.
std::uint32_t nearestInSixteenBits(std::uint32_t colour);

// Returns the contrast ratio of the marble's disc and the ground around it, at least 1: their mean
// luminances plus 0.05 each, the larger divided by the smaller. Both are as far from the eye as
// when the marble rolls, and in fog.
double marbleContrast(const Level& course);

// Returns the least distance of a sky, 0xRRGGBB, from the clock, which turns from green to red: in
// CIE 1976 L*a*b*, where black and white are 100 apart.
double clockDistance(std::uint32_t sky);
