// A scene and its ray tracer: land with a texture, glass marbles, a sign, a sky.
#pragma once

#include <optional>
#include <vector>

#include "art/pictures/glass_marble.h"
#include "art/pictures/image.h"
#include "art/pictures/landscape.h"
#include "art/pictures/sign.h"
#include "art/pictures/sky.h"

struct Scene {
    Sky sky;
    Landscape land;
    std::vector<Image> texture; // the mip chain of the ground (ground_textures.h)
    std::vector<GlassMarble> marbles = {};
    std::optional<Sign> sign = {};
};

struct Camera {
    Vector3 eye;
    double pitch;       // radians below the horizon; it looks towards +y
    double focalLength; // in widths of the picture
};

// Renders the scene; every pixel is the mean of samples x samples rays. All processors share the
// work; the result does not depend on their number.
Image render(const Scene& scene, const Camera& camera, int width, int height, int samples);
