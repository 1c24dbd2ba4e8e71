#include "art/pictures/ground_textures.h"

#include <algorithm>

#include "art/common/portable_math.h"
#include "sim/level.h"

namespace {

Image drawTile(GroundPattern* pattern) {
    constexpr int samples = 6; // of a texel, each way
    Image tile(groundTextureSize, groundTextureSize);
    const double step = 1.0 / (groundTextureSize * samples);
    for (int row = 0; row < groundTextureSize; ++row) {
        for (int column = 0; column < groundTextureSize; ++column) {
            Colour sum;
            for (int s = 0; s < samples * samples; ++s) {
                const int i = column * samples + s % samples;
                const int j = row * samples + s / samples;
                sum = sum + pattern((i + 0.5) * step * tileWidth,
                                    tileLength - (j + 0.5) * step * tileLength);
            }
            tile.at(column, row) = sum * (1.0 / (samples * samples));
        }
    }
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
