// Textures with all their mip levels, each in its own bitmap file: the game scales no pictures.
//
// A chain with the base name B is B_0.bmp, B_1.bmp, ...; file k is a square picture of size >> k
// pixels a side. Ground and font are such chains.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "data/bitmap.h"
#include "data/font.h"
#include "sim/level.h"

struct MipChain {
    int levels;
    int size; // pixels a side of level 0
};

inline constexpr MipChain groundChain = {groundTextureLevels, groundTextureSize};
inline constexpr MipChain fontChain = {fontLevels, fontSize};

inline constexpr int mipBaseNameCapacity = 250; // bytes of a base name, with the final zero

// Returns the file name of level k.
inline std::string mipFileName(const std::string& baseName, int k) {
    return baseName + "_" + std::to_string(k) + ".bmp";
}

// Returns the bytes of a slot. The levels of a chain lie in memory one after another, each in a
// slot that is large enough for level 0.
constexpr std::size_t slotSize(const MipChain& chain) {
    return static_cast<std::size_t>(chain.size) * static_cast<std::size_t>(chain.size) *
           bytesPerPixel;
}

// Reads one picture of at most `capacity` bytes as red, green, blue. Returns false when it cannot
// be read or is too large.
using PictureReader = bool (*)(const char* fileName, std::uint8_t* pixels, std::int32_t capacity);

// Reads all files of a chain into its slots, level 0 first. A picture of another size is accepted
// when its bytes fit the slot; they then count as those of a picture of the level's size. Returns
// false at the first file that cannot be read, or when the base name is too long for a file name,
// with that name in `picture`.
bool readMipChain(const MipChain& chain, const std::string& baseName, PictureReader readPicture,
                  std::uint8_t* slots, std::string& picture);
