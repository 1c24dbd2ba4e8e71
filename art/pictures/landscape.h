// A piece of the game's ground to look at: wells and mounds, summed as the game sums them.
//
// In the painted scenes z points UP (the game's ground counts downwards); x and y are the game's.
#pragma once

#include <span>
#include <vector>

#include "sim/level.h"
#include "sim/vector.h"

struct Landscape {
    // Asks the game's ground field for the heights of a lattice over the visible piece.
    explicit Landscape(std::span<const Hole> holes);

    // The elevation at a point, smooth between the lattice's heights; beyond the piece it goes on
    // as at its border.
    double heightAt(double x, double y) const;

    // The upward unit normal.
    Vector3 normalAt(double x, double y) const;

    // How open to the sky a point is, 1 on a plain, less in a hollow.
    double opennessAt(double x, double y) const;

    // Where a ray from `eye` along the unit vector `direction` meets the ground: its distance, or
    // -1 when it does not within `limit`.
    double hit(const Vector3& eye, const Vector3& direction, double limit) const;

    // How much of the sun in the unit direction `towards` reaches a point: 1 all, 0 none. The edge
    // of the shadow is soft.
    double sunAt(const Vector3& point, const Vector3& towards) const;

private:
    double latticeHeight(int column, int row) const;

    std::vector<double> heights;
    double highest;
};
