#include "art/pictures/image.h"

#include <algorithm>
#include <cmath>

#include "art/common/byte_writer.h"
#include "art/common/portable_math.h"
#include "data/bitmap.h"

namespace {

double linearToSrgb(double light) {
    return light <= 0.0031308 ? 12.92 * light : 1.055 * power(light, 1.0 / 2.4) - 0.055;
}

double srgbToLinear(double value) {
    return value <= 0.04045 ? value / 12.92 : power((value + 0.055) / 1.055, 2.4);
}

std::array<float, 256> linearOfBytes() {
    std::array<float, 256> light{};
    for (std::size_t i = 0; i < light.size(); ++i) {
        light[i] = static_cast<float>(srgbToLinear(static_cast<double>(i) / 255.0));
    }
    return light;
}

std::uint8_t toSrgb8(float light) {
    return static_cast<std::uint8_t>(std::lround(linearToSrgb(clamp01(light)) * 255.0));
}

// Returns the byte nearest to a value 0..1 among those that the given number of bits can hold.
int nearestByte(double value, int bits) {
    const int highest = (1 << bits) - 1;
    const int level = std::clamp(static_cast<int>(std::floor(value * highest + 0.5)), 0, highest);
    return (level << (8 - bits)) | (level >> (2 * bits - 8));
}

// Rounds the sRGB values of one channel of the image and spreads the errors.
void ditherChannel(Raster<double>& values, int bits, std::size_t channel, Image8& result) {
    const auto add = [&values](int x, int y, double error) {
        if (x >= 0 && x < values.width && y < values.height) { values.at(x, y) += error; }
    };
    for (int y = 0; y < values.height; ++y) {
        const int forward = y % 2 == 0 ? 1 : -1;
        for (int i = 0; i < values.width; ++i) {
            const int x = forward > 0 ? i : values.width - 1 - i;
            const int byte = nearestByte(values.at(x, y), bits);
            const double error = values.at(x, y) - byte / 255.0;
            result.at(x, y)[channel] = static_cast<std::uint8_t>(byte);
            add(x + forward, y, error * 7.0 / 16.0);
            add(x - forward, y + 1, error * 3.0 / 16.0);
            add(x, y + 1, error * 5.0 / 16.0);
            add(x + forward, y + 1, error * 1.0 / 16.0);
        }
    }
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

Colour lerp(const Colour& a, const Colour& b, double share) {
    return a * (1.0 - share) + b * share;
}

Colour srgb(std::uint32_t code) {
    static const std::array<float, 256> light = linearOfBytes();
    return {light[(code >> 16) & 255U], light[(code >> 8) & 255U], light[code & 255U]};
}

Image8 toSrgb8(const Image& image) {
    Image8 result(image.width, image.height);
    const auto convert = [](const Colour& c) {
        return Rgb8{toSrgb8(c.red), toSrgb8(c.green), toSrgb8(c.blue)};
    };
    std::transform(image.pixels.begin(), image.pixels.end(), result.pixels.begin(), convert);
    return result;
}

Image8 ditherTo565(const Image& image) {
    Image8 result(image.width, image.height);
    using Channel = float Colour::*;
    const auto dither = [&](Channel channel, int bits, std::size_t index) {
        Raster<double> values(image.width, image.height);
        std::transform(image.pixels.begin(), image.pixels.end(), values.pixels.begin(),
                       [&](const Colour& p) { return linearToSrgb(clamp01(p.*channel)); });
        ditherChannel(values, bits, index, result);
    };
    dither(&Colour::red, 5, 0);
    dither(&Colour::green, 6, 1);
    dither(&Colour::blue, 5, 2);
    return result;
}

bool writeBitmap(const Image8& image, const std::filesystem::path& file) {
    constexpr std::uint32_t headers = bitmapFileHeaderSize + bitmapInfoHeaderSize;
    constexpr std::uint32_t pixelsPerMetre = 2835; // 72 an inch
    const int standardRow = (image.width * bytesPerPixel + 3) / 4 * 4;
    const auto dataBytes = static_cast<std::uint32_t>(standardRow * image.height);

    ByteWriter out;
    out.text("BM");
    out.littleEndian(headers + dataBytes, 4);
    out.littleEndian(0, 4); // reserved
    out.littleEndian(headers, 4);
    out.littleEndian(bitmapInfoHeaderSize, 4);
    out.littleEndian(static_cast<std::uint32_t>(image.width), 4);
    out.littleEndian(static_cast<std::uint32_t>(image.height), 4);
    out.littleEndian(1, 2);                 // planes
    out.littleEndian(8 * bytesPerPixel, 2); // bits of a pixel
    out.littleEndian(0, 4);                 // not compressed
    out.littleEndian(dataBytes, 4);
    out.littleEndian(pixelsPerMetre, 4);
    out.littleEndian(pixelsPerMetre, 4);
    out.littleEndian(0, 4); // no palette
    out.littleEndian(0, 4);
    for (int y = image.height - 1; y >= 0; --y) {
        for (int x = 0; x < image.width; ++x) {
            const Rgb8& pixel = image.at(x, y);
            out.littleEndian((pixel[0] << 16U) | (pixel[1] << 8U) | pixel[2], 3);
        }
    }
    out.bytes.resize(headers + dataBytes);
    return out.writeTo(file);
}
