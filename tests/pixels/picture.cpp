#include "pixels/picture.h"

#include <GL/gl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "fakes/game_files.h"

namespace {

void save(Picture picture, const std::string& fileName) {
    writeBitmap(GLORBIX_PICTURES "/" + fileName, 640, 480, [&](int x, int y) {
        const Pixel p = picture.at(x, y);
        return static_cast<unsigned>(p.red) << 16 | static_cast<unsigned>(p.green) << 8 |
               static_cast<unsigned>(p.blue);
    });
}

double difference(Pixel a, Pixel b) {
    return std::max(
        {std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
}

} // namespace

Picture photograph() {
    std::vector<float> colours(640 * 480 * 3);
    glReadPixels(0, 0, 640, 480, GL_RGB, GL_FLOAT, colours.data());
    return paint([&](int x, int y) {
        const float* p = &colours[static_cast<std::size_t>(y * 640 + x) * 3];
        return Pixel{p[0], p[1], p[2]} * 255;
    });
}

Picture paint(const std::function<Pixel(int x, int y)>& pixelAt) {
    Picture picture;
    for (int i = 0; i < 640 * 480; ++i) {
        picture.at(i % 640, i / 640) = pixelAt(i % 640, i / 640);
    }
    return picture;
}

void expectLike(const Picture& actual, const Picture& expected, const std::string& name,
                double tolerance, double shareOfMisses) {
    int misses = 0;
    for (std::size_t i = 0; i < actual.pixels.size(); ++i) {
        misses += difference(actual.pixels[i], expected.pixels[i]) > tolerance ? 1 : 0;
    }
    if (misses <= shareOfMisses * 640 * 480) { return; }
    ADD_FAILURE() << name << ": " << misses << " pixels differ, see " GLORBIX_PICTURES;
    save(actual, name + "-actual.bmp");
    save(expected, name + "-expected.bmp");
}
