// A word of the game's typeface as a solid: the strokes are round tubes in an upright plane that
// faces -y.
#pragma once

#include <string_view>
#include <vector>

#include "art/pictures/image.h"
#include "art/pictures/ray.h"

struct Sign {
    // The middle of the word's baseline is at `foot`.
    Sign(std::string_view word, const Vector3& foot);

    // Returns the distance along the ray to the nearest tube, or -1.
    double hit(const Ray& ray) const;

    // Returns the outward unit normal at a point of the surface.
    Vector3 normalAt(const Vector3& point) const;

    // Returns 0 at the foot of the capitals, 1 at their top.
    double levelOf(const Vector3& point) const;

    // Returns the middle of the letter at `index` of the word: half its width, half its height.
    Vector3 middleOf(std::size_t index) const;

private:
    double signedDistance(const Vector3& point) const;

    Vector3 origin;                    // the word's left end on the baseline
    std::vector<double> letterMiddles; // glyph pixels from the left end
    Raster<double> distances;          // from grid points to the middle of the strokes, in pixels
};

inline constexpr double signScale = 7.5;                  // world units a glyph pixel
inline constexpr double signTubeRadius = 3.0 * signScale; // world units
