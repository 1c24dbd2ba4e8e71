// A marble of clear glass with twisted ribbons inside.
#pragma once

#include "art/pictures/image.h"
#include "art/pictures/ray.h"

// The path of a ray through a marble: where it leaves, the light that the ribbons add, and the
// share that they and the glass transmit.
struct GlassPath {
    Vector3 exit;
    Vector3 direction;
    Colour ribbonLight;
    Colour transmittance;
};

struct GlassMarble {
    Vector3 centre;
    double radius;
    Vector3 axis;  // a unit vector, not vertical, that the ribbons wind about
    Colour ribbon; // of every other ribbon; the rest are white

    // Returns the distance along the ray at which it enters the marble, or -1.
    double hit(const Ray& ray) const;

    // Follows a ray of the given direction that enters at `point`.
    GlassPath refractThrough(const Vector3& point, const Vector3& direction) const;
};

// Returns the share of light that glass reflects at an angle of incidence with this cosine
// (Schlick's approximation).
double fresnelReflectance(double cosine);
