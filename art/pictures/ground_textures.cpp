#include "art/pictures/ground_textures.h"

#include <algorithm>

#include "art/common/portable_math.h"
#include "sim/level.h"

namespace {

constexpr int samples = 6; // of a texel, each way
constexpr int rasterSize = groundTextureSize * samples;

Raster<Spot> drawSpots(GroundPattern* pattern) {
    Raster<Spot> spots(rasterSize, rasterSize);
    const double step = 1.0 / rasterSize;
    for (int row = 0; row < rasterSize; ++row) {
        for (int column = 0; column < rasterSize; ++column) {
            spots.at(column, row) = pattern((column + 0.5) * step * tileWidth,
                                            tileLength - (row + 0.5) * step * tileLength);
        }
    }
    return spots;
}

// Returns the paint at a sample, lit from above and left.
Colour litPaint(const Raster<Spot>& spots, int column, int row) {
    constexpr double run = 400.0 / rasterSize; // world units between the samples compared
    const auto heightAt = [&](int x, int y) {
        return spots.at((x + rasterSize) % rasterSize, (y + rasterSize) % rasterSize).height;
    };
    const double rise = heightAt(column + 1, row + 1) - heightAt(column - 1, row - 1);
    const double slope = rise / run;
    const Colour& paint = spots.at(column, row).paint;
    if (slope < 0.0) { return lerp(paint, paint * srgb(0x7884a4), clamp01(-slope)); }
    return lerp(paint, srgb(0xffffff), 0.8 * clamp01(slope));
}

// Dims a tile so that the mean of no channel passes the most that the 2 x 2 level can show.
void limitMean(Image& tile) {
    Colour sum;
    for (const Colour& light : tile.pixels) {
        sum = sum + light;
    }
    const double limit = srgb(0xbebebe).red * static_cast<double>(tile.pixels.size());
    const double share = limit / std::max({sum.red, sum.green, sum.blue});
    for (Colour& light : tile.pixels) {
        light = light * std::min(share, 1.0);
    }
}

Image drawTile(GroundPattern* pattern) {
    const Raster<Spot> spots = drawSpots(pattern);
    Image tile(groundTextureSize, groundTextureSize);
    for (int row = 0; row < rasterSize; ++row) {
        for (int column = 0; column < rasterSize; ++column) {
            Colour& texel = tile.at(column / samples, row / samples);
            texel = texel + litPaint(spots, column, row) * (1.0 / (samples * samples));
        }
    }
    limitMean(tile);
    return tile;
}

// A Lanczos kernel of two lobes for halving: the weights of the texels at 1/4, 3/4, 5/4 and 7/4 of
// a new texel from its centre. Lines stay crisper than in the mean of four texels.
std::array<double, 4> halvingKernel() {
    std::array<double, 4> weights{};
    double sum = 0.0;
    for (std::size_t i = 0; i < 4; ++i) {
        const double x = pi * (0.25 + 0.5 * static_cast<double>(i));
        weights[i] = sine(x) / x * sine(x / 2) / (x / 2);
        sum += 2.0 * weights[i];
    }
    for (double& weight : weights) {
        weight /= sum;
    }
    return weights;
}

// Halves the width and transposes the image; applied twice, it halves both sides.
Image halveAndTranspose(const Image& from) {
    static const std::array<double, 4> kernel = halvingKernel();
    Image half(from.height, from.width / 2);
    for (int y = 0; y < from.height; ++y) {
        for (int x = 0; x < from.width / 2; ++x) {
            Colour sum;
            for (int i = 0; i < 4; ++i) {
                const int left = (2 * x - i + from.width * 4) % from.width;
                const int right = (2 * x + 1 + i) % from.width;
                sum = sum +
                      (from.at(left, y) + from.at(right, y)) * kernel[static_cast<std::size_t>(i)];
            }
            half.at(y, x) = {std::max(sum.red, 0.0F), std::max(sum.green, 0.0F),
                             std::max(sum.blue, 0.0F)};
        }
    }
    return half;
}

} // namespace

std::vector<Image> groundMipChain(GroundPattern* pattern) {
    std::vector<Image> chain{drawTile(pattern)};
    while (static_cast<int>(chain.size()) < groundTextureLevels) {
        chain.push_back(halveAndTranspose(halveAndTranspose(chain.back())));
    }
    return chain;
}
