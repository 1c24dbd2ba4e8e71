// OpenGL for the tests: nothing is drawn, and the calls that tests look at are recorded. The pixel
// tests cover the others.
#include <GL/gl.h>

#include "fakes/trace.h"

namespace {

template <class... Numbers>
void draw(std::string_view name, Numbers... numbers) {
    machine.drawn.emplace_back(name, numbers...);
}

double firstPixel(const void* pixels) {
    const auto* bytes = static_cast<const GLubyte*>(pixels);
    return bytes[0] << 16 | bytes[1] << 8 | bytes[2];
}

} // namespace

void glCullFace(GLenum) {}
void glDepthFunc(GLenum) {}
void glBlendFunc(GLenum, GLenum) {}
void glHint(GLenum, GLenum) {}
void glLineWidth(GLfloat) {}
void glFlush() {}
void glEnable(GLenum) {}
void glEnd() {}
void glFogf(GLenum, GLfloat) {}
void glFogfv(GLenum, const GLfloat*) {}
void glClearDepth(GLclampd) {}
void glTexEnvf(GLenum, GLenum, GLfloat) {}
void glTexParameterf(GLenum, GLenum, GLfloat) {}
void glDeleteTextures(GLsizei, const GLuint*) {}

void glDisable(GLenum what) {
    draw("glDisable", what);
}
void glColor3f(GLfloat r, GLfloat g, GLfloat b) {
    draw("glColor3f", r, g, b);
}
void glClearColor(GLclampf r, GLclampf g, GLclampf b, GLclampf a) {
    draw("glClearColor", r, g, b, a);
}
void glClear(GLbitfield buffers) {
    draw("glClear", buffers);
}
void glBegin(GLenum mode) {
    draw("glBegin", mode);
}
void glColor4f(GLfloat r, GLfloat g, GLfloat b, GLfloat a) {
    draw("glColor4f", r, g, b, a);
}
void glTexCoord2f(GLfloat s, GLfloat t) {
    draw("glTexCoord2f", s, t);
}
void glVertex2f(GLfloat x, GLfloat y) {
    draw("glVertex2f", x, y);
}
void glVertex3f(GLfloat x, GLfloat y, GLfloat z) {
    draw("glVertex3f", x, y, z);
}
void glBindTexture(GLenum target, GLuint name) {
    draw("glBindTexture", target, name);
}
void glTexImage2D(GLenum, GLint mipLevel, GLint internalFormat, GLsizei width, GLsizei height,
                  GLint border, GLenum format, GLenum type, const void* pixels) {
    draw("glTexImage2D", mipLevel, internalFormat, width, height, border, format, type,
         firstPixel(pixels));
}
GLboolean glAreTexturesResident(GLsizei, const GLuint*, GLboolean*) {
    return GL_FALSE;
}
void glDrawPixels(GLsizei width, GLsizei height, GLenum, GLenum, const void* pixels) {
    draw("glDrawPixels", width, height, firstPixel(pixels));
}
