#include "art/pictures/scene.h"

#include <algorithm>
#include <cmath>

#include "art/pictures/ground_textures.h"
#include "art/pictures/parallel.h"
#include "art/pictures/portable_math.h"

namespace {

constexpr double farAway = 6000.0;
constexpr int mirrorDepth = 2; // mirrorings followed after the first sight

struct Ray {
    Vector3 eye;
    Vector3 direction;
    double spread; // width of the ray's cone for each unit of length
    int depth;     // mirrorings and refractions on the way
};

Vector3 at(const Ray& ray, double distance) {
    return ray.eye + ray.direction * static_cast<float>(distance);
}

// The ray after a surface of the given radius at the given distance, which widens its cone.
Ray onward(const Ray& ray, double distance, double radius, const Vector3& from,
           const Vector3& direction) {
    const double widened = 2.0 * distance * ray.spread / radius;
    return {from + direction * 0.05F, direction, ray.spread + widened, ray.depth + 1};
}

const Colour& texel(const Canvas& level, int x, int y) {
    const int mask = level.width - 1; // sizes are powers of two
    return level.at(x & mask, mask - (y & mask));
}

Colour bilinear(const Canvas& level, double x, double y) {
    const double u = x / tileWidth * level.width - 0.5;
    const double v = y / tileLength * level.height - 0.5;
    const double column = std::floor(u);
    const double row = std::floor(v);
    const int i = static_cast<int>(column);
    const int j = static_cast<int>(row);
    return mix(mix(texel(level, i, j), texel(level, i + 1, j), u - column),
               mix(texel(level, i, j + 1), texel(level, i + 1, j + 1), u - column), v - row);
}

// The ground's texture where one ray covers `footprint` world units.
Colour textureAt(const std::vector<Canvas>& chain, double x, double y, double footprint) {
    const double texelsCovered = footprint * groundTileSize / tileLength;
    const double wanted = texelsCovered > 1.0 ? naturalLogarithm(texelsCovered) / 0.6931472 : 0.0;
    const double level = std::min(wanted, static_cast<double>(chain.size()) - 1.001);
    const auto finer = static_cast<std::size_t>(level);
    return mix(bilinear(chain[finer], x, y), bilinear(chain[finer + 1], x, y),
               level - static_cast<double>(finer));
}

Colour lightAlong(const Scene& scene, const Ray& ray);

// What a marble does to the light on the ground: it takes the sun and some sky away, and gathers
// the sun to a bright spot in the middle of its shadow.
struct MarbleShade {
    double sun = 1.0;
    double sky = 1.0;
    Colour gathered;
};

MarbleShade shadeOf(const Scene& scene, const Vector3& point, const Vector3& normal) {
    MarbleShade shade;
    for (const GlassMarble& marble : scene.marbles) {
        const Vector3 to = marble.centre - point;
        const double distance = to.length();
        const double facing = std::max(0.0, static_cast<double>(dot(to, normal)) / distance);
        const double size = marble.radius / distance;
        shade.sky *= 1.0 - 0.85 * facing * size * size;
        const double along = dot(to, scene.mood.sun);
        if (along < 0.0) continue;
        const Vector3 aside = to - scene.mood.sun * static_cast<float>(along);
        const double off = aside.length() / marble.radius;
        shade.sun *= mix(0.12, 1.0, smoothStep(0.80, 1.12, off));
        shade.gathered = shade.gathered + marble.ribbon * (1.6 * exponential(-off * off * 7.0));
    }
    return shade;
}

Colour groundLight(const Scene& scene, const Ray& ray, double distance) {
    const Mood& mood = scene.mood;
    const Vector3 point = at(ray, distance);
    const double clear = clearnessAt(mood, distance);
    if (clear < 0.004) return mood.haze;

    const Vector3 normal = scene.land.normalAt(point.x, point.y);
    const double grazing = std::max(0.12, -static_cast<double>(dot(normal, ray.direction)));
    const Colour paint =
        textureAt(scene.texture, point.x, point.y, distance * ray.spread / std::sqrt(grazing));
    const MarbleShade shade = shadeOf(scene, point, normal);
    const double facing = std::max(0.0F, dot(normal, mood.sun));
    const double sun = facing > 0.0 ? facing * shade.sun * scene.land.sunAt(point, mood.sun) : 0.0;
    const double open = scene.land.opennessAt(point.x, point.y) * shade.sky;
    const Colour light = mood.sunlight * sun + mood.skylight * (open * (0.6 + 0.4 * normal.z)) +
                         shade.gathered * facing;
    const double unshaded = mix(0.3, 1.0, shade.sun * shade.sky);
    const Colour own = paint * paint * (3.0 * scene.lineGlow * unshaded);
    return mix(mood.haze, paint * light + own, clear);
}

// A bright, soft-edged window of light that polished things mirror towards the eye.
Colour sparkle(const Mood& mood, const Vector3& mirror, double sharpness) {
    const double towards = std::max(0.0F, dot(mirror, mood.sun));
    return mood.sunlight * (3.0 * power(towards, sharpness));
}

Colour signLight(const Scene& scene, const Ray& ray, double distance) {
    const Mood& mood = scene.mood;
    const Vector3 point = at(ray, distance);
    const Vector3 normal = scene.sign->normalAt(point);
    const double level = clamp01(scene.sign->levelOf(point));
    const Colour low = mix(colourOf(0xff1f6e), colourOf(0xff7a1a), smoothStep(0.0, 0.5, level));
    const Colour paint = mix(low, colourOf(0xffe24a), smoothStep(0.4, 1.0, level));
    const double facing = clamp01(0.3 + 0.8 * dot(normal, mood.sun));
    const Colour body = paint * (0.22 + 0.95 * facing) + paint * mood.skylight * 0.15;
    const Vector3 mirror = reflected(ray.direction, normal);
    const double share = mirrored(-dot(ray.direction, normal));
    const Colour seen =
        ray.depth < mirrorDepth
            ? lightAlong(scene, onward(ray, distance, scene.sign->tubeRadius(), point, mirror))
            : skyIn(mood, mirror);
    return mix(body, seen, 0.10 + 0.8 * share) + sparkle(mood, mirror, 60.0) * 0.35;
}

Colour marbleLight(const Scene& scene, const GlassMarble& marble, const Ray& ray, double distance) {
    const Mood& mood = scene.mood;
    const Vector3 point = at(ray, distance);
    const Vector3 normal = (point - marble.centre).unit();
    const Vector3 mirror = reflected(ray.direction, normal);
    const GlassPath path = throughMarble(marble, point, ray.direction, mood.sun);
    Colour outside = skyIn(mood, mirror);
    Colour behind = skyIn(mood, path.direction);
    if (ray.depth < mirrorDepth) {
        outside = lightAlong(scene, onward(ray, distance, marble.radius, point, mirror));
        behind = lightAlong(scene, onward(ray, distance, marble.radius, path.exit, path.direction));
    }
    const double share = mirrored(-dot(ray.direction, normal));
    const Colour inside = path.ribbonLight + behind * path.passing;
    return mix(inside, outside, share) + sparkle(mood, mirror, 220.0) +
           sparkle(mood, mirror, 12.0) * 0.05;
}

Colour lightAlong(const Scene& scene, const Ray& ray) {
    double nearest = scene.land.hit(ray.eye, ray.direction, farAway);
    if (nearest < 0.0) nearest = farAway;
    const GlassMarble* marbleSeen = nullptr;
    for (const GlassMarble& marble : scene.marbles) {
        const double distance = hitMarble(marble, ray.eye, ray.direction);
        if (distance < 0.0 || distance >= nearest) continue;
        nearest = distance;
        marbleSeen = &marble;
    }
    if (scene.sign) {
        const double distance = scene.sign->hit(ray.eye, ray.direction);
        if (distance > 0.0 && distance < nearest) return signLight(scene, ray, distance);
    }
    if (marbleSeen != nullptr) return marbleLight(scene, *marbleSeen, ray, nearest);
    if (nearest < farAway) return groundLight(scene, ray, nearest);
    const Colour sky = skyIn(scene.mood, ray.direction);
    return ray.depth == 0 ? sky + starsIn(scene.mood, ray.direction) : sky;
}

} // namespace

Canvas render(const Scene& scene, const Camera& camera, int width, int height, int samplesAcross) {
    Canvas picture(width, height);
    const auto c = static_cast<float>(cosine(camera.pitch));
    const auto s = static_cast<float>(sine(camera.pitch));
    const Vector3 forward(0.0F, c, -s);
    const Vector3 up(0.0F, s, c);
    const double pixel = 1.0 / (camera.focal * width);
    const double share = 1.0 / samplesAcross;
    forEachRow(height, [&](int row) {
        for (int column = 0; column < width; ++column) {
            Colour sum;
            for (int i = 0; i < samplesAcross * samplesAcross; ++i) {
                const double x = column + (i % samplesAcross + 0.5) * share - 0.5 * width;
                const double y = 0.5 * height - row - (i / samplesAcross + 0.5) * share;
                const Vector3 direction = forward + up * static_cast<float>(y * pixel) +
                                          Vector3(static_cast<float>(x * pixel), 0.0F, 0.0F);
                sum = sum + lightAlong(scene, {camera.eye, direction.unit(), pixel, 0});
            }
            picture.at(column, row) = sum * (share * share);
        }
    });
    return picture;
}
