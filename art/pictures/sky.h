// The light of a scene: sky, sun and haze.
#pragma once

#include "art/pictures/image.h"
#include "sim/vector.h"

struct Sky {
    Colour zenith;
    Colour middle;
    Colour horizon;
    Colour haze;       // what distant land fades to
    Colour glow;       // of the sun behind the haze, straight ahead
    double glowShare;  // of that light where it is brightest, 0..1
    double cloudCover; // 0..1
    Colour sunlight;   // on a surface that faces the sun
    Colour skylight;   // on a surface that faces the sky
    double hazeLength; // world units after which two thirds of the land are haze

    // Returns the light of the sky from a unit direction; below the horizon, the haze.
    Colour lightFrom(const Vector3& direction) const;

    // Returns the light of the haze that covers land in a unit direction.
    Colour hazeFrom(const Vector3& direction) const;

    // Returns the share of light that the haze transmits over a distance.
    double transmittance(double distance) const;
};

// The unit direction towards the sun.
inline const Vector3 sunDirection = Vector3(-0.55F, -0.22F, 0.62F).unit();
