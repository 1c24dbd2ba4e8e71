#include "art/pictures/canvas.h"

#include <array>

#include "art/pictures/portable_math.h"

namespace {

std::size_t indexOf(int width, int x, int y) {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
           static_cast<std::size_t>(x);
}

std::size_t areaOf(int width, int height) {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

std::uint8_t displayByte(float light) {
    return static_cast<std::uint8_t>(displayValue(clamp01(light)) * 255.0 + 0.5);
}

std::array<float, 256> lightOfBytes() {
    std::array<float, 256> light{};
    for (std::size_t i = 0; i < light.size(); ++i)
        light[i] = static_cast<float>(lightOf(static_cast<double>(i) / 255.0));
    return light;
}

} // namespace

Colour operator+(const Colour& a, const Colour& b) {
    return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}

Colour operator*(const Colour& a, const Colour& b) {
    return {a.red * b.red, a.green * b.green, a.blue * b.blue};
}

Colour operator*(const Colour& a, double share) {
    const auto s = static_cast<float>(share);
    return {a.red * s, a.green * s, a.blue * s};
}

Colour mix(const Colour& a, const Colour& b, double share) {
    return a * (1.0 - share) + b * share;
}

Colour colourOf(std::uint32_t code) {
    static const std::array<float, 256> light = lightOfBytes();
    return {light[(code >> 16) & 255U], light[(code >> 8) & 255U], light[code & 255U]};
}

double displayValue(double light) {
    return light <= 0.0031308 ? 12.92 * light : 1.055 * power(light, 1.0 / 2.4) - 0.055;
}

double lightOf(double displayed) {
    return displayed <= 0.04045 ? displayed / 12.92 : power((displayed + 0.055) / 1.055, 2.4);
}

Canvas::Canvas(int w, int h) : width(w), height(h), pixels(areaOf(w, h)) {}
Colour& Canvas::at(int x, int y) {
    return pixels[indexOf(width, x, y)];
}
const Colour& Canvas::at(int x, int y) const {
    return pixels[indexOf(width, x, y)];
}

Picture::Picture(int w, int h) : width(w), height(h), bytes(areaOf(w, h) * 3) {}
std::uint8_t* Picture::at(int x, int y) {
    return &bytes[indexOf(width, x, y) * 3];
}
const std::uint8_t* Picture::at(int x, int y) const {
    return &bytes[indexOf(width, x, y) * 3];
}

Picture developed(const Canvas& canvas) {
    Picture picture(canvas.width, canvas.height);
    std::uint8_t* byte = picture.bytes.data();
    for (const Colour& pixel : canvas.pixels) {
        *byte++ = displayByte(pixel.red);
        *byte++ = displayByte(pixel.green);
        *byte++ = displayByte(pixel.blue);
    }
    return picture;
}
