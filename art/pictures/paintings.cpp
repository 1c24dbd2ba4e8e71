#include "art/pictures/paintings.h"

#include "art/pictures/ground_textures.h"
#include "art/pictures/scene.h"

namespace {

constexpr int screenWidth = 640;
constexpr int screenHeight = 480;
constexpr double gameFocal = 400.0 / 640.0; // of the game's own view, in widths of the picture

const Vector3 westernSun = Vector3(-0.55F, -0.22F, 0.62F).unit();

Mood dusk() {
    return {.zenith = colourOf(0x080a2c),
            .middle = colourOf(0x3c1a68),
            .horizon = colourOf(0xb0406c),
            .haze = colourOf(0x1a0a28),
            .glow = colourOf(0xffa040) * 0.8,
            .sun = westernSun,
            .sunlight = colourOf(0xffd8b0) * 1.5,
            .skylight = colourOf(0x8f90ff) * 0.5,
            .hazeLength = 1150.0,
            .stars = 1.0};
}

Mood night() {
    return {.zenith = colourOf(0x05071c),
            .middle = colourOf(0x141040),
            .horizon = colourOf(0x35205a),
            .haze = colourOf(0x1c1440),
            .glow = colourOf(0x604080) * 0.4,
            .sun = westernSun,
            .sunlight = colourOf(0xb8c4ff) * 0.32,
            .skylight = colourOf(0x5060b0) * 0.5,
            .hazeLength = 1700.0,
            .stars = 1.0};
}

GlassMarble blueMarble(const Vector3& centre, double radius, const Vector3& axis) {
    return {
        centre, radius, axis.unit(), colourOf(0x10b8f0), colourOf(0xfff4e0), colourOf(0xd8f4ff)};
}

// A marble that touches the ground below its centre.
GlassMarble marbleAt(const Landscape& land, float x, float y, double radius) {
    const Vector3 ground(x, y, static_cast<float>(land.heightAt(x, y)));
    const Vector3 centre = ground + land.normalAt(x, y) * static_cast<float>(radius);
    return blueMarble(centre, radius, {0.80F, -0.22F, 0.55F});
}

// A marble that hangs in the ring of a letter.
GlassMarble marbleIn(const Sign& sign, int letter, double radius) {
    return blueMarble(sign.middleOf(letter), radius, {0.3F, -0.5F, 0.8F});
}

Scene sceneOf(const Mood& mood, std::span<const Hole> holes, const char* texture) {
    return {mood, Landscape(holes), groundMipChain(groundTextureNamed(texture).pattern), 0.35, {},
            {}};
}

// Wells and mounds before the eye, and hills against the last light.
constexpr Hole titleLand[] = {
    {-330, 330, 70, 190},     {420, 700, 90, 230},      {-60, 760, 80, 200},
    {-620, 900, 120, 260},    {820, 1150, 130, 280},    {180, 1250, 100, 240},
    {-380, 1450, 110, 260},   {520, 1750, 120, 300},    {-900, 1900, 200, 320},
    {-80, 2000, 130, 300},    {1100, 2300, 220, 340},   {-480, 2500, 150, 320},
    {340, 2700, 160, 320},    {-760, 420, 150, -110},   {640, 330, 140, -70},
    {60, 1650, 160, -130},    {-1150, 3300, 130, -230}, {-420, 4100, 150, -250},
    {420, 4500, 140, -210},   {1050, 3900, 170, -300},  {1900, 3700, 150, -270},
    {-2000, 4000, 180, -280},
};

Vector3 above(const Landscape& land, float x, float y, float height) {
    return {x, y, static_cast<float>(land.heightAt(x, y)) + height};
}

} // namespace

Canvas titlePainting() {
    Scene scene = sceneOf(dusk(), titleLand, "embers");
    const Camera camera{above(scene.land, 0.0F, -60.0F, 165.0F), 0.187, gameFocal};
    const Vector3 foot = camera.eye + Vector3(0.0F, 800.0F, 74.0F);
    scene.sign.emplace("GLORBIX", foot, 7.5, 3.0, 1.0);
    scene.marbles.push_back(marbleIn(*scene.sign, 2, 42.0));
    scene.marbles.push_back(marbleAt(scene.land, 112.0F, 195.0F, 50.0));
    return render(scene, camera, screenWidth, screenHeight, 4);
}

Canvas backPainting() {
    Scene scene = sceneOf(night(), titleLand, "embers");
    scene.lineGlow = 0.06;
    const Camera camera{above(scene.land, 0.0F, -60.0F, 300.0F), 0.25, gameFocal};
    return render(scene, camera, screenWidth, screenHeight, 4);
}

Canvas iconPainting(int size) {
    constexpr Hole land[] = {{70, 420, 90, 260}, {-400, 700, 150, 240}, {420, 900, 160, 280}};
    Scene scene = sceneOf(dusk(), land, "grid");
    scene.marbles.push_back(marbleAt(scene.land, -14.0F, 225.0F, 92.0));
    scene.marbles.back().ribbon = colourOf(0xff9010);
    const Camera camera{above(scene.land, 0.0F, -30.0F, 215.0F), 0.42, 0.95};
    return render(scene, camera, size, size, size < 100 ? 8 : 4);
}
