#include "art/pictures/paintings.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "art/common/portable_math.h"
#include "art/pictures/ground_textures.h"
#include "art/pictures/scene.h"
#include "art/pictures/typeface.h"
#include "sim/projection.h"
#include "state/screen.h"

namespace {

constexpr double gameFocalLength = focalLength / screenWidth; // of the game's own view

Sky duskSky() {
    return {.zenith = srgb(0x080a2c),
            .middle = srgb(0x3c1a68),
            .horizon = srgb(0xb0406c),
            .haze = srgb(0x1a0a28),
            .glow = srgb(0xffa040) * 0.8,
            .sunlight = srgb(0xffd8b0) * 1.5,
            .skylight = srgb(0x8f90ff) * 0.5,
            .hazeLength = 1150.0};
}

Sky nightSky() {
    return {.zenith = srgb(0x05071c),
            .middle = srgb(0x141040),
            .horizon = srgb(0x35205a),
            .haze = srgb(0x1c1440),
            .glow = srgb(0x604080) * 0.4,
            .sunlight = srgb(0xb8c4ff) * 0.32,
            .skylight = srgb(0x5060b0) * 0.5,
            .hazeLength = 1700.0};
}

Vector3 above(const Landscape& land, float x, float y, float height) {
    return {x, y, static_cast<float>(land.heightAt(x, y)) + height};
}

// Returns a marble that touches the ground below its centre.
GlassMarble marbleAt(const Landscape& land, float x, float y, double radius, Colour ribbon) {
    const Vector3 centre =
        above(land, x, y, 0.0F) + land.normalAt(x, y) * static_cast<float>(radius);
    return {centre, radius, Vector3(0.80F, -0.22F, 0.55F).unit(), ribbon};
}

// Wells and mounds in the foreground, hills at the horizon.
constexpr Hole titleLand[] = {
    {-330, 330, 70, 190},     {420, 700, 90, 230},      {-60, 760, 80, 200},
    {-620, 900, 120, 260},    {820, 1150, 130, 280},    {180, 1250, 100, 240},
    {-380, 1450, 110, 260},   {520, 1750, 120, 300},    {-900, 1900, 200, 320},
    {-80, 2000, 130, 300},    {1100, 2300, 220, 340},   {-480, 2500, 150, 320},
    {340, 2700, 160, 320},    {-760, 420, 150, -110},   {640, 330, 140, -70},
    {60, 1650, 160, -130},    {-1150, 3300, 130, -230}, {-420, 4100, 150, -250},
    {420, 4500, 140, -210},   {1050, 3900, 170, -300},  {1900, 3700, 155, -275},
    {-1900, 3950, 150, -260},
};

// Darkens the image for small text, from its left edge to `right` and from `top` to `bottom`.
void darken(Image& image, int right, int top, int bottom) {
    constexpr double share = 0.03; // of the light that stays
    constexpr double edge = 20.0;  // pixels around the text over which it fades
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            const double dx = std::max(0, x - right);
            const double dy = std::max({0, top - y, y - bottom});
            const double outside = std::sqrt(dx * dx + dy * dy) / edge;
            image.at(x, y) = image.at(x, y) * lerp(share, 1.0, smoothstep(0.0, 1.0, outside));
        }
    }
}

// Writes a line of half the size that the typeface has, at a place in pixels from the top left.
void writeLine(Image& image, std::string_view text, Point place) {
    for (const char character : text) {
        const LetterShape& shape = letterShape(character == ' ' ? 'i' : character);
        const Skeleton ink = character == ' ' ? Skeleton{} : readSkeleton(shape.path);
        for (int i = 0; i < image.width * image.height; ++i) {
            const int x = i % image.width;
            const int y = i / image.width;
            const Point point{2.0 * (x + 0.5 - place.x), 2.0 * (place.y - y - 0.5)};
            const double share = clamp01(0.5 - 0.5 * signedDistance(ink, point));
            image.at(x, y) = lerp(image.at(x, y), srgb(0xffe8c8), share);
        }
        place.x += 0.5 * shape.width;
    }
}

} // namespace

Image titlePainting() {
    Scene scene{duskSky(), Landscape(titleLand), groundMipChain(emberPattern)};
    const Camera camera{above(scene.land, 0.0F, -60.0F, 165.0F), 0.187, gameFocalLength};
    scene.sign.emplace("GLORBIX", camera.eye + Vector3(0.0F, 800.0F, 74.0F));
    const Colour blue = srgb(0x10b8f0);
    const Vector3 insideTheO = scene.sign->middleOf(2);
    scene.marbles.push_back({insideTheO, 42.0, Vector3(0.3F, -0.5F, 0.8F).unit(), blue});
    scene.marbles.push_back(marbleAt(scene.land, 120.0F, 225.0F, 50.0, blue));
    Image image = render(scene, camera, screenWidth, screenHeight, 4);
    darken(image, 268, 448, screenHeight);
    writeLine(image, "Esc menu   arrows roll   Shift turbo", {12.0, 468.0});
    return image;
}

Image backPainting() {
    Scene scene{nightSky(), Landscape(titleLand), groundMipChain(emberPattern)};
    scene.glow = 0.06;
    const Camera camera{above(scene.land, 0.0F, -60.0F, 300.0F), 0.25, gameFocalLength};
    Image image = render(scene, camera, screenWidth, screenHeight, 4);
    darken(image, 130, 0, 170);                    // the times of a run
    darken(image, screenWidth, 452, screenHeight); // the line at the foot
    return image;
}

Image iconPainting(int size) {
    constexpr Hole land[] = {{70, 420, 90, 260}, {-400, 700, 150, 240}, {420, 900, 160, 280}};
    Scene scene{duskSky(), Landscape(land), groundMipChain(gridPattern)};
    scene.marbles.push_back(marbleAt(scene.land, -14.0F, 225.0F, 92.0, srgb(0xff9010)));
    const Camera camera{above(scene.land, 0.0F, -30.0F, 215.0F), 0.42, 0.95};
    return render(scene, camera, size, size, size < 100 ? 8 : 4);
}
