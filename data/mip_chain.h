// Textures with all their mip levels, each a bitmap file of its own: the game scales nothing.
//
// A chain with the base name B is B_0.bmp, B_1.bmp, ...; file k is meant to be a square picture of
// size >> k pixels a side. Ground and font are such chains.
#pragma once

#include <cstdint>

// What is fixed about a chain; the parameters are OpenGL's.
struct MipChain {
    int levels;
    int size;           // pixels a side of level 0
    unsigned texture;   // the texture's fixed OpenGL name
    int internalFormat; // what OpenGL keeps of the pixels
    int wrap;           // in both directions
    int magnification;
    int minification;
};

inline constexpr int mipBaseNameCapacity = 250; // bytes of a base name, with its zero

// Reads all files of a chain into slots of size * size * 3 bytes each, one after the other. The
// first file that cannot be read (or a base name too long for any) is named in a message box, and
// false comes back. A picture of another size is read as long as its bytes fit the slot; its bytes
// then serve as those of a picture of the level's size.
bool readMipChain(const MipChain& chain, const char* baseName, std::uint8_t* slots);

// Makes the chain current as GL_TEXTURE_2D, sets its parameters and hands all levels to OpenGL.
void uploadMipChain(const MipChain& chain, const std::uint8_t* slots);
