// The ground of a painted scene: wells and mounds, summed as the game sums them. Elevations point
// upwards, unlike the depths of the game.
#pragma once

#include <span>

#include "art/pictures/image.h"
#include "art/pictures/ray.h"
#include "sim/level.h"

struct Landscape {
    // Samples the game's ground field on a lattice over the visible part.
    explicit Landscape(std::span<const Hole> holes);

    // Returns the elevation, smooth between the points of the lattice and constant beyond it.
    double heightAt(double x, double y) const;

    // Returns the upward unit normal.
    Vector3 normalAt(double x, double y) const;

    // Returns how open to the sky a point is: 1 on a plain, less in a hollow.
    double ambientOcclusion(double x, double y) const;

    // Marches along the ray. Returns the distance to the ground, or -1 when it is beyond `limit`.
    double hit(const Ray& ray, double limit) const;

    // Returns the share of the sun that reaches a point, 0..1; shadows have soft edges.
    double sunlightAt(const Vector3& point) const;

private:
    Raster<double> heights;
    double highest;
};
