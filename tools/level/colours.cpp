#include "tools/level/colours.h"

#include <algorithm>
#include <cmath>

#include "sim/level.h"

namespace {

// The marble's depth when it rolls at some speed; the camera lags.
constexpr double rollingDepth = 730.0;

// Fog as drawn: none up to a depth of 400, all of it from 1800, linear in 1 / depth between.
constexpr double fogStart = 1.0 / 400.0;
constexpr double fogEnd = 1.0 / 1800.0;
constexpr double clearPart = (fogEnd - 1.0 / rollingDepth) / (fogEnd - fogStart);

constexpr double rimBrightness = 0.1; // of the disc's edge, its centre having 1
constexpr int discRings = 40;         // that its mean is computed from

// Red, green and blue, each 0 to 255.
struct Colour {
    double part[3];
};

Colour colourOf(std::uint32_t code) {
    return {{static_cast<double>(code >> 16 & 255U), static_cast<double>(code >> 8 & 255U),
             static_cast<double>(code & 255U)}};
}

Colour inFog(const Colour& colour, const Colour& fog) {
    Colour mixed = {};
    for (int i = 0; i < 3; ++i) {
        mixed.part[i] = clearPart * colour.part[i] + (1.0 - clearPart) * fog.part[i];
    }
    return mixed;
}

// Returns the luminance of an sRGB colour, 0 to 1.
double luminance(const Colour& colour) {
    constexpr double weights[] = {0.2126, 0.7152, 0.0722};
    double sum = 0.0;
    for (int i = 0; i < 3; ++i) {
        const double c = colour.part[i] / 255.0;
        sum += weights[i] * (c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4));
    }
    return sum;
}

double discLuminance(const Colour& marble, const Colour& fog) {
    double sum = 0.0;
    double area = 0.0;
    for (int ring = 0; ring < discRings; ++ring) {
        const double radius = (ring + 0.5) / discRings;
        const double shade = 1.0 - (1.0 - rimBrightness) * radius;
        const Colour shaded = {
            {marble.part[0] * shade, marble.part[1] * shade, marble.part[2] * shade}};
        sum += luminance(inFog(shaded, fog)) * radius;
        area += radius;
    }
    return sum / area;
}

// The mean of the tile's bytes, which the smaller pictures of its chain show.
Colour groundColour(const Level& course) {
    constexpr int pixels = groundTextureSize * groundTextureSize;
    Colour mean = {};
    for (int i = 0; i < pixels * 3; ++i) {
        mean.part[i % 3] += course.texturePixels[0][i] / static_cast<double>(pixels);
    }
    return mean;
}

std::uint32_t nearestOf(std::uint32_t part, double levels) {
    return static_cast<std::uint32_t>(
        std::lround(std::round(part * levels / 255.0) * 255.0 / levels));
}

} // namespace

std::uint32_t nearestInSixteenBits(std::uint32_t colour) {
    return nearestOf(colour >> 16 & 255U, 31.0) << 16 | nearestOf(colour >> 8 & 255U, 63.0) << 8 |
           nearestOf(colour & 255U, 31.0);
}

double marbleContrast(const Level& course) {
    const Colour fog = colourOf(course.fogColourCode);
    const double disc = discLuminance(colourOf(course.marbleColourCode), fog);
    const double ground = luminance(inFog(groundColour(course), fog));
    const double darker = std::max(std::min(disc, ground), 1.0e-6);
    return std::max(disc, ground) / darker;
}
