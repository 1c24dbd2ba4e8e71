#include "bench/gl_recording.h"

#include <algorithm>
#include <utility>

#include <GL/gl.h>
#include <dlfcn.h>

#include "platform/display_mode.h"

enum class GlFunction : std::uint8_t {
    Begin,
    BindTexture,
    BlendFunc,
    Clear,
    ClearColor,
    Color3f,
    Color4f,
    CullFace,
    DepthFunc,
    Disable,
    Enable,
    End,
    Flush,
    Fogf,
    Fogfv,
    Hint,
    LineWidth,
    TexCoord2f,
    TexEnvf,
    Vertex2f,
    Vertex3f,
};

namespace {

// OpenGL's own function, which the one of this file hides.
template <typename Function>
Function* own(Function*, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

const auto ownBegin = own(&glBegin, "glBegin");
const auto ownBindTexture = own(&glBindTexture, "glBindTexture");
const auto ownBlendFunc = own(&glBlendFunc, "glBlendFunc");
const auto ownClear = own(&glClear, "glClear");
const auto ownClearColor = own(&glClearColor, "glClearColor");
const auto ownColor3f = own(&glColor3f, "glColor3f");
const auto ownColor4f = own(&glColor4f, "glColor4f");
const auto ownCullFace = own(&glCullFace, "glCullFace");
const auto ownDepthFunc = own(&glDepthFunc, "glDepthFunc");
const auto ownDisable = own(&glDisable, "glDisable");
const auto ownEnable = own(&glEnable, "glEnable");
const auto ownEnd = own(&glEnd, "glEnd");
const auto ownFlush = own(&glFlush, "glFlush");
const auto ownFogf = own(&glFogf, "glFogf");
const auto ownFogfv = own(&glFogfv, "glFogfv");
const auto ownHint = own(&glHint, "glHint");
const auto ownLineWidth = own(&glLineWidth, "glLineWidth");
const auto ownTexCoord2f = own(&glTexCoord2f, "glTexCoord2f");
const auto ownTexEnvf = own(&glTexEnvf, "glTexEnvf");
const auto ownVertex2f = own(&glVertex2f, "glVertex2f");
const auto ownVertex3f = own(&glVertex3f, "glVertex3f");

bool recording = false;
GlRecording recorded;

template <typename... Numbers>
void note(GlFunction function, Numbers... numbers) {
    if (recording) { recorded.calls.push_back({function, {static_cast<float>(numbers)...}}); }
}

void make(const GlCall& call) {
    const float* n = call.numbers;
    const auto name = [n](int i) { return static_cast<GLenum>(n[i]); };
    switch (call.function) {
    case GlFunction::Begin: ownBegin(name(0)); break;
    case GlFunction::BindTexture: ownBindTexture(name(0), name(1)); break;
    case GlFunction::BlendFunc: ownBlendFunc(name(0), name(1)); break;
    case GlFunction::Clear: ownClear(name(0)); break;
    case GlFunction::ClearColor: ownClearColor(n[0], n[1], n[2], n[3]); break;
    case GlFunction::Color3f: ownColor3f(n[0], n[1], n[2]); break;
    case GlFunction::Color4f: ownColor4f(n[0], n[1], n[2], n[3]); break;
    case GlFunction::CullFace: ownCullFace(name(0)); break;
    case GlFunction::DepthFunc: ownDepthFunc(name(0)); break;
    case GlFunction::Disable: ownDisable(name(0)); break;
    case GlFunction::Enable: ownEnable(name(0)); break;
    case GlFunction::End: ownEnd(); break;
    case GlFunction::Flush: ownFlush(); break;
    case GlFunction::Fogf: ownFogf(name(0), n[1]); break;
    case GlFunction::Fogfv: ownFogfv(GL_FOG_COLOR, n); break;
    case GlFunction::Hint: ownHint(name(0), name(1)); break;
    case GlFunction::LineWidth: ownLineWidth(n[0]); break;
    case GlFunction::TexCoord2f: ownTexCoord2f(n[0], n[1]); break;
    case GlFunction::TexEnvf: ownTexEnvf(name(0), name(1), n[2]); break;
    case GlFunction::Vertex2f: ownVertex2f(n[0], n[1]); break;
    case GlFunction::Vertex3f: ownVertex3f(n[0], n[1], n[2]); break;
    }
}

} // namespace

std::vector<std::uint8_t> pictureOnSurface() {
    std::vector<std::uint8_t> pixels(3 * screenWidth * screenHeight);
    glReadPixels(0, 0, screenWidth, screenHeight, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
    return pixels;
}

void startRecording() {
    recorded = {};
    recording = true;
}

GlRecording stopRecording() {
    recording = false;
    return std::exchange(recorded, {});
}

void replay(std::span<const GlCall> calls) {
    std::for_each(calls.begin(), calls.end(), make);
}

void glBegin(GLenum mode) {
    note(GlFunction::Begin, mode);
    ownBegin(mode);
}
void glBindTexture(GLenum target, GLuint texture) {
    note(GlFunction::BindTexture, target, texture);
    ownBindTexture(target, texture);
}
void glBlendFunc(GLenum source, GLenum destination) {
    note(GlFunction::BlendFunc, source, destination);
    ownBlendFunc(source, destination);
}
void glClear(GLbitfield buffers) {
    if (recording) { recorded.picture = pictureOnSurface(); }
    note(GlFunction::Clear, buffers);
    ownClear(buffers);
}
void glClearColor(GLclampf r, GLclampf g, GLclampf b, GLclampf a) {
    note(GlFunction::ClearColor, r, g, b, a);
    ownClearColor(r, g, b, a);
}
void glColor3f(GLfloat r, GLfloat g, GLfloat b) {
    note(GlFunction::Color3f, r, g, b);
    ownColor3f(r, g, b);
}
void glColor4f(GLfloat r, GLfloat g, GLfloat b, GLfloat a) {
    note(GlFunction::Color4f, r, g, b, a);
    ownColor4f(r, g, b, a);
}
void glCullFace(GLenum side) {
    note(GlFunction::CullFace, side);
    ownCullFace(side);
}
void glDepthFunc(GLenum comparison) {
    note(GlFunction::DepthFunc, comparison);
    ownDepthFunc(comparison);
}
void glDisable(GLenum what) {
    note(GlFunction::Disable, what);
    ownDisable(what);
}
void glEnable(GLenum what) {
    note(GlFunction::Enable, what);
    ownEnable(what);
}
void glEnd() {
    note(GlFunction::End);
    ownEnd();
}
void glFlush() {
    note(GlFunction::Flush);
    ownFlush();
}
void glFogf(GLenum what, GLfloat value) {
    note(GlFunction::Fogf, what, value);
    ownFogf(what, value);
}
void glFogfv(GLenum what, const GLfloat* colour) {
    note(GlFunction::Fogfv, colour[0], colour[1], colour[2], colour[3]);
    ownFogfv(what, colour);
}
void glHint(GLenum what, GLenum mode) {
    note(GlFunction::Hint, what, mode);
    ownHint(what, mode);
}
void glLineWidth(GLfloat width) {
    note(GlFunction::LineWidth, width);
    ownLineWidth(width);
}
void glTexCoord2f(GLfloat s, GLfloat t) {
    note(GlFunction::TexCoord2f, s, t);
    ownTexCoord2f(s, t);
}
void glTexEnvf(GLenum target, GLenum what, GLfloat value) {
    note(GlFunction::TexEnvf, target, what, value);
    ownTexEnvf(target, what, value);
}
void glVertex2f(GLfloat x, GLfloat y) {
    note(GlFunction::Vertex2f, x, y);
    ownVertex2f(x, y);
}
void glVertex3f(GLfloat x, GLfloat y, GLfloat z) {
    note(GlFunction::Vertex3f, x, y, z);
    ownVertex3f(x, y, z);
}
