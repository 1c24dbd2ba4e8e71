#include "data/mip_chain.h"

#include <cstddef>
#include <cstdio>
#include <cstring>

#include <GL/gl.h>

#include "app/game.h"
#include "data/bitmap.h"

namespace {

int slotSize(const MipChain& chain) {
    return chain.size * chain.size * 3; // bytes
}

// Where level k begins among the slots.
std::size_t slotOffset(const MipChain& chain, int k) {
    return static_cast<std::size_t>(k) * static_cast<std::size_t>(slotSize(chain));
}

void setParameter(GLenum name, int value) {
    glTexParameterf(GL_TEXTURE_2D, name, static_cast<GLfloat>(value));
}

} // namespace

bool readMipChain(const MipChain& chain, const char* baseName, std::uint8_t* slots) {
    if (std::strlen(baseName) >= mipBaseNameCapacity) {
        MessageBoxA(nullptr, baseName, fileErrorCaption, MB_OK);
        return false;
    }
    for (int k = 0; k < chain.levels; ++k) {
        char fileName[mipBaseNameCapacity + 16];
        std::snprintf(fileName, sizeof fileName, "%s_%d.bmp", baseName, k);
        if (!readBitmap(fileName, slots + slotOffset(chain, k), slotSize(chain))) {
            MessageBoxA(nullptr, fileName, fileErrorCaption, MB_OK);
            return false;
        }
    }
    return true;
}

void uploadMipChain(const MipChain& chain, const std::uint8_t* slots) {
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, chain.texture);
    setParameter(GL_TEXTURE_WRAP_S, chain.wrap);
    setParameter(GL_TEXTURE_WRAP_T, chain.wrap);
    setParameter(GL_TEXTURE_MAG_FILTER, chain.magnification);
    setParameter(GL_TEXTURE_MIN_FILTER, chain.minification);
    for (int k = 0; k < chain.levels; ++k) {
        const int side = chain.size >> k;
        glTexImage2D(GL_TEXTURE_2D, k, chain.internalFormat, side, side, 0, GL_RGB,
                     GL_UNSIGNED_BYTE, slots + slotOffset(chain, k));
    }
}
