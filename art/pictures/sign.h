// A word of the game's typeface as a body: the letters' strokes as thick round tubes that stand
// upright in a scene and face its eye.
#pragma once

#include <string_view>
#include <vector>

#include "sim/vector.h"

struct Sign {
    // Stands on its baseline at `foot`, the middle of the word, facing -y. `scale` is world units
    // a glyph pixel, `radius` the tubes' in glyph pixels, `tracking` room added between letters.
    Sign(std::string_view word, const Vector3& foot, double scale, double radius, double tracking);

    // The distance along the ray at which it meets a tube, or -1.
    double hit(const Vector3& eye, const Vector3& direction) const;

    // The outward unit normal at a point of the surface.
    Vector3 normalAt(const Vector3& point) const;

    // Half the thickness of the strokes, world units.
    double tubeRadius() const { return tube; }

    // 0 at the foot of the capitals, 1 at their top.
    double levelOf(const Vector3& point) const;

    // The middle of a letter's ring or stem, in the world: half its width, half the capitals'
    // height. `index` counts the word's letters from 0.
    Vector3 middleOf(int index) const;

private:
    double toSkeleton(double x, double z) const;
    double distanceTo(const Vector3& point) const;

    Vector3 origin; // the word's left end on the baseline
    double unit;    // world units a glyph pixel
    double tube;    // world units
    int gridWidth;
    int gridHeight;
    std::vector<double> letterMiddles; // glyph pixels from the left end
    std::vector<double> grid;          // distances to the skeleton in glyph pixels
};
