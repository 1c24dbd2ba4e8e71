// The functions of OpenGL 1.1 for textures and pictures.

#include <GL/gl.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <span>
#include <vector>

#include "platform/web/gl_batch.h"
#include "platform/web/page_calls.h"

namespace {

constexpr std::uint32_t pictureTexture = 0xFFFF; // for glDrawPixels; the game does not use it
constexpr int rgb = 3;                           // components
constexpr int rgba = 4;

std::set<GLuint> uploaded; // names of textures with pixels

int rowBytes(int width) {
    return (width * rgb + 3) / 4 * 4;
}

// An intensity is all four components of the texture; red is taken for it.
std::vector<std::uint8_t> intensities(const std::uint8_t* pixels, int width, int height) {
    std::vector<std::uint8_t> made;
    made.reserve(static_cast<std::size_t>(width * height * rgba));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            made.insert(made.end(), rgba, pixels[y * rowBytes(width) + x * rgb]);
        }
    }
    return made;
}

} // namespace

void glTexImage2D(GLenum, GLint level, GLint internalFormat, GLsizei width, GLsizei height, GLint,
                  GLenum, GLenum, const GLvoid* pixels) {
    flushBatch();
    const auto* bytes = static_cast<const std::uint8_t*>(pixels);
    if (internalFormat == GL_INTENSITY) {
        const std::vector<std::uint8_t> made = intensities(bytes, width, height);
        pageUploadTexture(glState.boundTexture, level, width, height, rgba, made.data());
    } else {
        pageUploadTexture(glState.boundTexture, level, width, height, rgb, bytes);
    }
    uploaded.insert(glState.boundTexture);
}

void glTexParameterf(GLenum, GLenum name, GLfloat value) {
    flushBatch();
    pageSetTextureParameter(glState.boundTexture, name, static_cast<int>(value));
}

GLboolean glAreTexturesResident(GLsizei count, const GLuint* names, GLboolean*) {
    const std::span<const GLuint> all(names, static_cast<std::size_t>(count));
    const bool resident =
        std::all_of(all.begin(), all.end(), [](GLuint name) { return uploaded.contains(name); });
    return resident ? GL_TRUE : GL_FALSE;
}

void glDeleteTextures(GLsizei count, const GLuint* names) {
    flushBatch();
    for (const GLuint name : std::span(names, static_cast<std::size_t>(count))) {
        pageDeleteTexture(name);
        uploaded.erase(name);
        if (glState.boundTexture == name) { glState.boundTexture = 0; }
    }
}

// The picture starts in the lower left corner: the game never sets a raster position.
void glDrawPixels(GLsizei width, GLsizei height, GLenum, GLenum, const GLvoid* pixels) {
    flushBatch();
    pageUploadTexture(pictureTexture, 0, width, height, rgb,
                      static_cast<const std::uint8_t*>(pixels));
    addPicture(pictureTexture, width, height);
}
