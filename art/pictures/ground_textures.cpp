#include "art/pictures/ground_textures.h"

#include <algorithm>
#include <cstring>

#include "art/pictures/ground_patterns.h"
#include "art/pictures/portable_math.h"

namespace {

constexpr GroundTexture textures[] = {
    {"grid", gridPattern, 0x1b2450, 0xffc832},
    {"embers", emberPattern, 0x3a1c52, 0x60f4ff},
    {"sand", sandPattern, 0x7a5236, 0x30b4ff},
    {"hexagons", hexagonPattern, 0x124a4e, 0xff8098},
    {"planks", plankPattern, 0x4a3350, 0x60ffb8},
    {"scales", scalePattern, 0x0e3a28, 0xff78c0},
    {"circuit", circuitPattern, 0x0a1f18, 0xff70ff},
    {"paving", pavingPattern, 0x5c6a72, 0xffe030},
    {"ice", icePattern, 0x4f7fa8, 0xff2a70},
    {"lava", lavaPattern, 0x3a0f0a, 0x50f0ff},
    {"ribbons", ribbonPattern, 0x6a2f5e, 0xa0ff50},
};

constexpr int samplesAcross = 6; // of a texel, each way

Canvas drawTile(GroundPattern pattern) {
    Canvas tile(groundTileSize, groundTileSize);
    const double step = 1.0 / (groundTileSize * samplesAcross);
    for (int row = 0; row < groundTileSize; ++row) {
        for (int column = 0; column < groundTileSize; ++column) {
            Colour sum;
            for (int s = 0; s < samplesAcross * samplesAcross; ++s) {
                const int i = column * samplesAcross + s % samplesAcross;
                const int j = row * samplesAcross + s / samplesAcross;
                sum = sum + pattern((i + 0.5) * step * tileWidth,
                                    tileLength - (j + 0.5) * step * tileLength);
            }
            tile.at(column, row) = sum * (1.0 / (samplesAcross * samplesAcross));
        }
    }
    return tile;
}

// A Lanczos kernel of two lobes for halving: the weights at 1/4, 3/4, 5/4 and 7/4 of a new texel
// from its centre. It keeps lines crisper than the mean of four texels, without shimmer.
struct HalvingKernel {
    double weights[4];

    HalvingKernel() {
        double sum = 0.0;
        for (int i = 0; i < 4; ++i) {
            const double x = pi * (0.25 + 0.5 * i);
            weights[i] = sine(x) / x * sine(x / 2) / (x / 2);
            sum += 2.0 * weights[i];
        }
        for (double& weight : weights)
            weight /= sum;
    }
};

Colour lit(const Colour& c) {
    return {std::max(c.red, 0.0F), std::max(c.green, 0.0F), std::max(c.blue, 0.0F)};
}

// Halves the width, turning the picture over its diagonal; twice done, both sides are halved.
Canvas halvedAcross(const Canvas& from, const HalvingKernel& kernel) {
    Canvas half(from.height, from.width / 2);
    for (int y = 0; y < from.height; ++y) {
        for (int x = 0; x < from.width / 2; ++x) {
            Colour sum;
            for (int i = 0; i < 4; ++i) {
                const int left = (2 * x - i + from.width * 4) % from.width;
                const int right = (2 * x + 1 + i) % from.width;
                sum = sum + (from.at(left, y) + from.at(right, y)) * kernel.weights[i];
            }
            half.at(y, x) = lit(sum);
        }
    }
    return half;
}

} // namespace

std::span<const GroundTexture> groundTextures() {
    return textures;
}

const GroundTexture& groundTextureNamed(const char* name) {
    return *std::find_if(std::begin(textures), std::end(textures), [name](const auto& texture) {
        return std::strcmp(texture.name, name) == 0;
    });
}

std::vector<Canvas> groundMipChain(GroundPattern pattern) {
    const HalvingKernel kernel;
    std::vector<Canvas> chain;
    chain.push_back(drawTile(pattern));
    while (static_cast<int>(chain.size()) < groundTileLevels)
        chain.push_back(halvedAcross(halvedAcross(chain.back(), kernel), kernel));
    return chain;
}
