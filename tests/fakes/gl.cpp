// OpenGL as the tests play it: every call is written down and draws nothing.
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

void glEnable(GLenum what) {
    draw("glEnable", what);
}
void glDisable(GLenum what) {
    draw("glDisable", what);
}
void glDepthFunc(GLenum function) {
    draw("glDepthFunc", function);
}
void glCullFace(GLenum face) {
    draw("glCullFace", face);
}
void glBlendFunc(GLenum source, GLenum target) {
    draw("glBlendFunc", source, target);
}
void glHint(GLenum what, GLenum mode) {
    draw("glHint", what, mode);
}
void glLineWidth(GLfloat pixels) {
    draw("glLineWidth", pixels);
}
void glFlush() {
    draw("glFlush");
}

void glFogf(GLenum what, GLfloat value) {
    draw("glFogf", what, value);
}
void glFogfv(GLenum what, const GLfloat* v) {
    draw("glFogfv", what, v[0], v[1], v[2], v[3]);
}
void glFogi(GLenum what, GLint value) {
    draw("glFogi", what, value);
}

void glClearDepth(GLclampd depth) {
    draw("glClearDepth", depth);
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
void glEnd() {
    draw("glEnd");
}
void glColor3f(GLfloat r, GLfloat g, GLfloat b) {
    draw("glColor3f", r, g, b);
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
void glTexEnvf(GLenum target, GLenum what, GLfloat value) {
    draw("glTexEnvf", target, what, value);
}
void glTexParameterf(GLenum target, GLenum what, GLfloat value) {
    draw("glTexParameterf", target, what, value);
}
void glTexImage2D(GLenum target, GLint mipLevel, GLint internalFormat, GLsizei width,
                  GLsizei height, GLint border, GLenum format, GLenum type, const void* pixels) {
    draw("glTexImage2D", target, mipLevel, internalFormat, width, height, border, format, type,
         firstPixel(pixels));
}
GLboolean glAreTexturesResident(GLsizei n, const GLuint* names, GLboolean* residences) {
    draw("glAreTexturesResident", n, names[0]);
    if (!machine.textureIsResident) { residences[0] = GL_FALSE; }
    return machine.textureIsResident ? GL_TRUE : GL_FALSE;
}
void glDeleteTextures(GLsizei n, const GLuint* names) {
    draw("glDeleteTextures", n, names[0]);
}
void glDrawPixels(GLsizei width, GLsizei height, GLenum format, GLenum type, const void* pixels) {
    draw("glDrawPixels", width, height, format, type, firstPixel(pixels));
}
