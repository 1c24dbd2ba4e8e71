// Rays of the ray tracer. In the painted scenes z points UP; x and y are those of the game.
#pragma once

#include "sim/vector.h"

struct Ray {
    Vector3 origin;
    Vector3 direction; // a unit vector
    double spread;     // width of the ray's cone for each unit of length
    int depth;         // reflections and refractions on the way

    Vector3 at(double distance) const { return origin + direction * static_cast<float>(distance); }
};

// Returns the direction after a reflection; `normal` is a unit vector.
inline Vector3 reflect(const Vector3& direction, const Vector3& normal) {
    return direction - normal * (2.0F * dot(direction, normal));
}
