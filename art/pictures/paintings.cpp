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

Sky daySky() {
    return {.zenith = srgb(0x1848b0),
            .middle = srgb(0x3a75ce),
            .horizon = srgb(0x78b4f0),
            .haze = srgb(0x6ca4e4),
            .glow = srgb(0xfffc98),
            .glowShare = 1.0,
            .cloudCover = 0.9,
            .sunlight = srgb(0xfff2d8) * 1.5,
            .skylight = srgb(0xa8c8ff) * 0.75,
            .hazeLength = 500.0};
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

// A valley between hills, with wells in the foreground.
constexpr Hole titleLand[] = {
    {-120, 330, 45, 110},  {60, 560, 60, 120},     {-420, 640, 110, -330}, {-700, 1000, 150, -480},
    {470, 700, 120, -340}, {780, 1050, 160, -520}, {330, 250, 50, 90},     {-330, 260, 60, 90},
};

// Hills that rise out of mist.
constexpr Hole backLand[] = {
    {-590, 760, 90, -400},
    {-850, 900, 140, -420},
    {580, 780, 85, -400},
    {850, 900, 140, -380},
};

// Returns the ink of a line of text; place in glyph pixels.
Skeleton inkOf(std::string_view text) {
    Skeleton line;
    double left = 0.0;
    for (const char character : text) {
        const LetterShape& shape = letterShape(character == ' ' ? 'i' : character);
        for (Stroke stroke : character == ' ' ? Skeleton{} : readSkeleton(shape.path)) {
            stroke.from.x += left;
            stroke.to.x += left;
            line.push_back(stroke);
        }
        left += shape.width;
    }
    return line;
}

// Writes a line of half the size that the typeface has, dark with a light rim, at a place in pixels
// from the top left.
void writeLine(Image& image, std::string_view text, const Point& place) {
    constexpr int above = 18; // pixels from the baseline that the line covers
    constexpr int below = 10;
    constexpr double rim = 9.0; // glyph pixels around the ink
    const Skeleton ink = inkOf(text);
    for (int y = static_cast<int>(place.y) - above; y < place.y + below; ++y) {
        for (int x = 0; x < image.width; ++x) {
            const double away =
                signedDistance(ink, {2.0 * (x + 0.5 - place.x), 2.0 * (place.y - y - 0.5)});
            Colour& pixel = image.at(x, y);
            pixel = lerp(pixel, srgb(0xfffcf0), 0.85 * (1.0 - smoothstep(0.3 * rim, rim, away)));
            pixel = lerp(pixel, srgb(0x081c60), clamp01(0.5 - 0.5 * away));
        }
    }
}

} // namespace

Image titlePainting() {
    Scene scene{daySky(), Landscape(titleLand), groundMipChain(tilePattern)};
    const Camera camera{above(scene.land, 0.0F, -60.0F, 120.0F), -0.15, gameFocalLength};
    scene.sign.emplace("GLORBIX", camera.eye + Vector3(0.0F, 800.0F, 405.0F));
    const Colour blue = srgb(0x1060f0);
    const Vector3 insideTheO = scene.sign->middleOf(2);
    scene.marbles.push_back({insideTheO, 42.0, Vector3(0.3F, -0.5F, 0.8F).unit(), blue});
    scene.marbles.push_back(marbleAt(scene.land, 190.0F, 330.0F, 62.0, blue));
    Image image = render(scene, camera, screenWidth, screenHeight, 4);
    writeLine(image, "Esc menu   arrows roll   Shift turbo", {12.0, 468.0});
    return image;
}

Image backPainting() {
    Scene scene{daySky(), Landscape(backLand), groundMipChain(tilePattern)};
    scene.sky.haze = srgb(0xffffff);
    scene.sky.glowShare = 0.0;
    scene.sky.cloudCover = 0.12;
    scene.sky.hazeLength = 1400.0;
    scene.marbles.push_back(marbleAt(scene.land, 578.0F, 765.0F, 50.0, srgb(0x1060f0)));
    const Camera camera{above(scene.land, 0.0F, -60.0F, 110.0F), -0.47, gameFocalLength};
    return render(scene, camera, screenWidth, screenHeight, 4);
}

Image iconPainting(int size) {
    constexpr Hole land[] = {{70, 420, 90, 260}, {-400, 700, 150, 240}, {420, 900, 160, 280}};
    Scene scene{daySky(), Landscape(land), groundMipChain(tilePattern)};
    scene.sky.glowShare = 0.0;
    scene.sky.hazeLength = 1400.0;
    scene.marbles.push_back(marbleAt(scene.land, -14.0F, 225.0F, 92.0, srgb(0x1060f0)));
    const Camera camera{above(scene.land, 0.0F, -30.0F, 215.0F), 0.42, 0.95};
    return render(scene, camera, size, size, size < 100 ? 8 : 4);
}
