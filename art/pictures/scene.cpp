#include "art/pictures/scene.h"

#include <algorithm>
#include <cmath>
#include <thread>

#include "art/common/portable_math.h"
#include "art/pictures/ground_textures.h"

namespace {

constexpr double naturalLogarithmOf2 = 0.6931472;
constexpr double farAway = 6000.0;
constexpr int maxDepth = 2; // reflections and refractions that are followed

// Returns the ray after a surface whose curvature, given by its radius, widens the ray's cone.
Ray deflect(const Ray& ray, double distance, double radius, const Vector3& from,
            const Vector3& direction) {
    const double widened = 2.0 * distance * ray.spread / radius;
    return {from + direction * 0.05F, direction, ray.spread + widened, ray.depth + 1};
}

const Colour& texel(const Image& level, int x, int y) {
    const int mask = level.width - 1; // sizes are powers of two
    return level.at(x & mask, mask - (y & mask));
}

Colour bilinear(const Image& level, double x, double y) {
    const double u = x / tileWidth * level.width - 0.5;
    const double v = y / tileLength * level.height - 0.5;
    const int i = static_cast<int>(std::floor(u));
    const int j = static_cast<int>(std::floor(v));
    return lerp(lerp(texel(level, i, j), texel(level, i + 1, j), u - i),
                lerp(texel(level, i, j + 1), texel(level, i + 1, j + 1), u - i), v - j);
}

// Returns the ground's texture where one ray covers `footprint` world units.
Colour trilinear(const std::vector<Image>& chain, double x, double y, double footprint) {
    const double texels = footprint * chain[0].height / tileLength;
    const double wanted = texels > 1.0 ? naturalLogarithm(texels) / naturalLogarithmOf2 : 0.0;
    const double level = std::min(wanted, static_cast<double>(chain.size()) - 1.001);
    const auto finer = static_cast<std::size_t>(level);
    return lerp(bilinear(chain[finer], x, y), bilinear(chain[finer + 1], x, y),
                level - static_cast<double>(finer));
}

Colour trace(const Scene& scene, const Ray& ray);

// The effect of the marbles on the light of the ground: they block sun and sky, and focus the sun
// to a bright spot in the middle of each shadow.
struct MarbleShadow {
    double sun = 1.0;
    double sky = 1.0;
    Colour caustic;
};

MarbleShadow shadowOfMarbles(const Scene& scene, const Vector3& point, const Vector3& normal) {
    MarbleShadow shadow;
    for (const GlassMarble& marble : scene.marbles) {
        const Vector3 to = marble.centre - point;
        const double distance = to.length();
        const double facing = std::max(0.0, static_cast<double>(dot(to, normal)) / distance);
        const double size = marble.radius / distance;
        const double touching = smoothstep(0.2, 0.85, size * facing); // 1 where it stands
        shadow.sky *= (1.0 - 0.85 * facing * size * size) * (1.0 - touching);
        const double along = dot(to, sunDirection);
        if (along >= 0.0) {
            const Vector3 aside = to - sunDirection * static_cast<float>(along);
            const double off = aside.length() / marble.radius;
            shadow.sun *= lerp(0.05, 1.0, smoothstep(0.80, 1.12, off));
            shadow.caustic = shadow.caustic + marble.ribbon * (1.6 * exponential(-off * off * 7.0));
        }
    }
    return shadow;
}

Colour shadeGround(const Scene& scene, const Ray& ray, double distance) {
    const Sky& sky = scene.sky;
    const double transmittance = sky.transmittance(distance);
    const Colour haze = sky.hazeFrom(ray.direction);
    if (transmittance < 0.004) { return haze; }
    const Vector3 point = ray.at(distance);
    const Vector3 normal = scene.land.normalAt(point.x, point.y);
    const double grazing = std::max(0.12, -static_cast<double>(dot(normal, ray.direction)));
    const Colour paint =
        trilinear(scene.texture, point.x, point.y, distance * ray.spread / std::sqrt(grazing));
    const MarbleShadow shadow = shadowOfMarbles(scene, point, normal);
    const double facing = std::max(0.0F, dot(normal, sunDirection));
    const double sun = facing > 0.0 ? facing * shadow.sun * scene.land.sunlightAt(point) : 0.0;
    const double open = scene.land.ambientOcclusion(point.x, point.y) * shadow.sky;
    const Colour light = sky.sunlight * sun + sky.skylight * (open * (0.6 + 0.4 * normal.z)) +
                         shadow.caustic * facing;
    return lerp(haze, paint * light, transmittance);
}

// Returns the sun's reflection in a polished surface.
Colour highlight(const Sky& sky, const Vector3& reflected, double sharpness) {
    const double towards = std::max(0.0F, dot(reflected, sunDirection));
    return sky.sunlight * (3.0 * power(towards, sharpness));
}

Colour shadeSign(const Scene& scene, const Sign& sign, const Ray& ray, double distance) {
    const Sky& sky = scene.sky;
    const Vector3 point = ray.at(distance);
    const Vector3 normal = sign.normalAt(point);
    const double level = clamp01(sign.levelOf(point));
    const Colour low = lerp(srgb(0xff1f6e), srgb(0xff7a1a), smoothstep(0.0, 0.5, level));
    const Colour paint = lerp(low, srgb(0xffe24a), smoothstep(0.4, 1.0, level));
    const double facing = clamp01(0.3 + 0.8 * dot(normal, sunDirection));
    const Colour body = paint * (0.22 + 0.95 * facing) + paint * sky.skylight * 0.15;
    const Vector3 direction = reflect(ray.direction, normal);
    Colour reflection = sky.lightFrom(direction);
    if (ray.depth < maxDepth) {
        reflection = trace(scene, deflect(ray, distance, signTubeRadius, point, direction));
    }
    const double share = fresnelReflectance(-dot(ray.direction, normal));
    return lerp(body, reflection, 0.10 + 0.8 * share) + highlight(sky, direction, 60.0) * 0.35;
}

Colour shadeMarble(const Scene& scene, const GlassMarble& marble, const Ray& ray, double distance) {
    const Sky& sky = scene.sky;
    const Vector3 point = ray.at(distance);
    const Vector3 normal = (point - marble.centre).unit();
    const Vector3 direction = reflect(ray.direction, normal);
    const GlassPath path = marble.refractThrough(point, ray.direction);
    Colour reflection = sky.lightFrom(direction);
    Colour beyond = sky.lightFrom(path.direction);
    if (ray.depth < maxDepth) {
        reflection = trace(scene, deflect(ray, distance, marble.radius, point, direction));
        beyond = trace(scene, deflect(ray, distance, marble.radius, path.exit, path.direction));
    }
    const double share = fresnelReflectance(-dot(ray.direction, normal));
    const Colour inside = path.ribbonLight + beyond * path.transmittance;
    return lerp(inside, reflection, share) + highlight(sky, direction, 220.0) +
           highlight(sky, direction, 12.0) * 0.05;
}

// Returns the light that arrives along a ray.
Colour trace(const Scene& scene, const Ray& ray) {
    double nearest = scene.land.hit(ray, farAway);
    if (nearest < 0.0) { nearest = farAway; }
    const GlassMarble* marbleSeen = nullptr;
    for (const GlassMarble& marble : scene.marbles) {
        const double distance = marble.hit(ray);
        if (distance >= 0.0 && distance < nearest) {
            nearest = distance;
            marbleSeen = &marble;
        }
    }
    const double toSign = scene.sign ? scene.sign->hit(ray) : -1.0;
    if (scene.sign && toSign > 0.0 && toSign < nearest) {
        return shadeSign(scene, *scene.sign, ray, toSign);
    }
    if (marbleSeen != nullptr) { return shadeMarble(scene, *marbleSeen, ray, nearest); }
    if (nearest < farAway) { return shadeGround(scene, ray, nearest); }
    return scene.sky.lightFrom(ray.direction);
}

// Renders every n-th row of the image, beginning with the given one.
void renderRows(const Scene& scene, const Camera& camera, int samples, int first, int n,
                Image& image) {
    const auto c = static_cast<float>(cosine(camera.pitch));
    const auto s = static_cast<float>(sine(camera.pitch));
    const Vector3 forward(0.0F, c, -s);
    const Vector3 up(0.0F, s, c);
    const double pixel = 1.0 / (camera.focalLength * image.width);
    const double share = 1.0 / samples;
    for (int row = first; row < image.height; row += n) {
        for (int column = 0; column < image.width; ++column) {
            Colour sum;
            for (int i = 0; i < samples * samples; ++i) {
                const int across = i % samples;
                const int down = i / samples;
                const double x = column + (across + 0.5) * share - 0.5 * image.width;
                const double y = 0.5 * image.height - row - (down + 0.5) * share;
                const Vector3 direction = forward + up * static_cast<float>(y * pixel) +
                                          Vector3(static_cast<float>(x * pixel), 0.0F, 0.0F);
                sum = sum + trace(scene, {camera.eye, direction.unit(), pixel, 0});
            }
            image.at(column, row) = sum * (share * share);
        }
    }
}

} // namespace

Image render(const Scene& scene, const Camera& camera, int width, int height, int samples) {
    Image image(width, height);
    const int count = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    std::vector<std::jthread> threads;
    threads.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        threads.emplace_back([&, i] { renderRows(scene, camera, samples, i, count, image); });
    }
    threads.clear(); // waits for all of them
    return image;
}
