// A marble of clear glass with a twisted swirl of coloured ribbons inside.
#pragma once

#include "sim/vector.h"
#include "art/pictures/canvas.h"

struct GlassMarble {
    Vector3 centre;
    double radius;
    Vector3 axis;  // unit vector that the ribbons wind about
    Colour ribbon; // every other one is white
    Colour second;
    Colour glass; // what is left of white light after one diameter
};

// The distance along the ray at which it enters the marble, or -1.
double hitMarble(const GlassMarble& marble, const Vector3& eye, const Vector3& direction);

// The share of light that the surface mirrors under the cosine of the angle of incidence.
double mirrored(double cosine);

// A mirrored direction; `normal` is a unit vector.
Vector3 reflected(const Vector3& direction, const Vector3& normal);

// What happens to a ray that enters at `point`: where and in which direction it leaves, the light
// it meets on the ribbons, and the share of what comes from behind that still passes.
struct GlassPath {
    Vector3 exit;
    Vector3 direction;
    Colour ribbonLight;
    Colour passing;
};
GlassPath throughMarble(const GlassMarble& marble, const Vector3& point, const Vector3& direction,
                        const Vector3& sun);
