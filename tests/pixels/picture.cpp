#include "pixels/picture.h"

#include <GL/gl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "fakes/game_files.h"

namespace {

std::uint8_t byteOf(double colour) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(colour, 0.0, 255.0)));
}

std::size_t offsetOf(const Picture& picture, int x, int y) {
    return static_cast<std::size_t>(y * picture.width + x) * 3;
}

void save(const Picture& picture, const std::string& fileName) {
    writeBitmap(GLORBIX_PICTURES "/" + fileName, picture.width, picture.height, [&](int x, int y) {
        const std::uint8_t* p = &picture.bytes[offsetOf(picture, x, y)];
        return static_cast<unsigned>(p[0] << 16 | p[1] << 8 | p[2]);
    });
}

} // namespace

Pixel Picture::at(int x, int y) const {
    const std::uint8_t* p = &bytes[offsetOf(*this, x, y)];
    return {static_cast<double>(p[0]), static_cast<double>(p[1]), static_cast<double>(p[2])};
}

void Picture::put(int x, int y, Pixel pixel) {
    const std::uint8_t colours[] = {byteOf(pixel.red), byteOf(pixel.green), byteOf(pixel.blue)};
    std::memcpy(&bytes[offsetOf(*this, x, y)], colours, 3);
}

Picture photograph() {
    Picture picture;
    glReadPixels(0, 0, picture.width, picture.height, GL_RGB, GL_UNSIGNED_BYTE,
                 picture.bytes.data());
    return picture;
}

Picture paint(const std::function<Pixel(int x, int y)>& pixelAt) {
    Picture picture;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            picture.put(x, y, pixelAt(x, y));
        }
    }
    return picture;
}

void expectLike(const Picture& actual, const Picture& expected, const std::string& name,
                double tolerance, double shareOfMisses) {
    int misses = 0;
    for (std::size_t i = 0; i < actual.bytes.size(); i += 3) {
        int difference = 0; // of the colour that differs most
        for (std::size_t part = i; part < i + 3; ++part) {
            difference = std::max(difference, std::abs(actual.bytes[part] - expected.bytes[part]));
        }
        misses += difference > tolerance ? 1 : 0;
    }
    if (misses <= shareOfMisses * 640 * 480) { return; }
    ADD_FAILURE() << name << ": " << misses << " pixels differ, see " GLORBIX_PICTURES;
    save(actual, name + "-actual.bmp");
    save(expected, name + "-expected.bmp");
}
