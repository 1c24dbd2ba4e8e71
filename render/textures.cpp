#include "render/textures.h"

#include <GL/gl.h>

#include "data/mip_chain.h"

namespace {

// The OpenGL parameters of a texture.
struct TextureParameters {
    GLuint name;
    GLint internalFormat; // format in which OpenGL stores the pixels
    GLint wrap;           // in both directions
    GLint magnification;
    GLint minification;
};

constexpr TextureParameters groundParameters = {
    .name = groundTexture,
    .internalFormat = 3, // components
    .wrap = GL_REPEAT,
    .magnification = GL_LINEAR,
    .minification = GL_LINEAR_MIPMAP_LINEAR,
};

constexpr TextureParameters fontParameters = {
    .name = fontTexture,
    .internalFormat = GL_INTENSITY,
    .wrap = GL_CLAMP,
    .magnification = GL_NEAREST,
    .minification = GL_NEAREST_MIPMAP_NEAREST,
};

void setParameter(GLenum name, GLint value) {
    glTexParameterf(GL_TEXTURE_2D, name, static_cast<GLfloat>(value));
}

void upload(const TextureParameters& parameters, const MipChain& chain, const std::uint8_t* slots) {
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, parameters.name);
    setParameter(GL_TEXTURE_WRAP_S, parameters.wrap);
    setParameter(GL_TEXTURE_WRAP_T, parameters.wrap);
    setParameter(GL_TEXTURE_MAG_FILTER, parameters.magnification);
    setParameter(GL_TEXTURE_MIN_FILTER, parameters.minification);
    for (int k = 0; k < chain.levels; ++k) {
        const int side = chain.size >> k;
        glTexImage2D(GL_TEXTURE_2D, k, parameters.internalFormat, side, side, 0, GL_RGB,
                     GL_UNSIGNED_BYTE, slots + static_cast<std::size_t>(k) * slotSize(chain));
    }
}

} // namespace

void uploadGroundTexture(const Level& ground) {
    const GLuint name = groundTexture;
    GLboolean resident = GL_FALSE;
    if (glAreTexturesResident(1, &name, &resident) == GL_TRUE) { glDeleteTextures(1, &name); }
    upload(groundParameters, groundChain, ground.texturePixels[0]);
}

void uploadFontTexture(const Font& from) {
    upload(fontParameters, fontChain, from.imageLevels[0]);
}
