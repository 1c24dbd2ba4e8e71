// The light of a painted scene: sky, sun and the haze that the land fades into.
#pragma once

#include "sim/vector.h"
#include "art/pictures/canvas.h"

struct Mood {
    Colour zenith;
    Colour middle;
    Colour horizon;
    Colour haze;       // what the land fades into
    Colour glow;       // added near the horizon straight ahead
    Vector3 sun;       // unit vector towards it, z up
    Colour sunlight;   // on a surface that faces the sun
    Colour skylight;   // on a surface that faces the sky
    double hazeLength; // world units after which two thirds of the land are haze
    double stars;      // 0 none .. 1 many
};

// The sky in the unit direction; below the horizon, the haze.
Colour skyIn(const Mood& mood, const Vector3& direction);

// Stars are seen by the eye alone, not in reflections.
Colour starsIn(const Mood& mood, const Vector3& direction);

// The share of a thing's own colour that the haze leaves at a distance.
double clearnessAt(const Mood& mood, double distance);
