// A painted scene: land with a texture, glass marbles on it, a sign above it, a sky. One call tells
// the light along a ray; render makes a picture of many.
#pragma once

#include <optional>
#include <vector>

#include "art/pictures/canvas.h"
#include "art/pictures/glass_marble.h"
#include "art/pictures/landscape.h"
#include "art/pictures/mood.h"
#include "art/pictures/sign.h"

struct Scene {
    Mood mood;
    Landscape land;
    std::vector<Canvas> texture; // the mip chain of the ground (ground_textures.h)
    double lineGlow;             // how much of the texture shines by itself, 0..1
    std::vector<GlassMarble> marbles;
    std::optional<Sign> sign;
};

// Eye, view and size of the picture. The picture's middle looks along `forward`.
struct Camera {
    Vector3 eye;
    double pitch; // radians below the horizon
    double focal; // in widths of the picture
};

// The picture of the scene, every pixel the mean of samplesAcross x samplesAcross rays. Rows are
// shared out among the processors; the result does not depend on their number.
Canvas render(const Scene& scene, const Camera& camera, int width, int height, int samplesAcross);
