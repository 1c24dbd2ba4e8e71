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

constexpr double glare = 0.05; // luminance that a lit screen adds to every colour

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

double light(double part) {
    const double c = part / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

// The weights of red, green and blue light in the CIE coordinates X, Y and Z, white having 1 each.
constexpr double weights[3][3] = {
    {0.4339, 0.3762, 0.1899}, {0.2126, 0.7152, 0.0722}, {0.0178, 0.1095, 0.8727}};

double coordinate(const Colour& colour, const double (&weight)[3]) {
    return weight[0] * light(colour.part[0]) + weight[1] * light(colour.part[1]) +
           weight[2] * light(colour.part[2]);
}

// Returns the luminance of an sRGB colour, 0 to 1.
double luminance(const Colour& colour) {
    return coordinate(colour, weights[1]);
}

// Returns the distance of two colours in CIE 1976 L*a*b*.
double distance(const Colour& a, const Colour& b) {
    const auto bent = [](double t) {
        return t > 216.0 / 24389.0 ? std::cbrt(t) : (24389.0 / 27.0 * t + 16.0) / 116.0;
    };
    double difference[3];
    for (int i = 0; i < 3; ++i) {
        difference[i] = bent(coordinate(a, weights[i])) - bent(coordinate(b, weights[i]));
    }
    return std::hypot(116.0 * difference[1], 500.0 * (difference[0] - difference[1]),
                      200.0 * (difference[1] - difference[2]));
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
    return (std::max(disc, ground) + glare) / (std::min(disc, ground) + glare);
}

double clockDistance(std::uint32_t sky) {
    double least = 1.0e9;
    for (int green = 0; green <= 255; ++green) {
        const Colour clock = {{255.0 - green, static_cast<double>(green), 0.0}};
        least = std::min(least, distance(clock, colourOf(sky)));
    }
    return least;
}
