// The functions of OpenGL 1.1 that set its state.

#include <GL/gl.h>

#include <algorithm>

#include "platform/web/gl_batch.h"
#include "platform/web/page_calls.h"

namespace {

void set(GLenum capability, bool on) {
    switch (capability) {
    case GL_DEPTH_TEST: glState.depthTest = on; break;
    case GL_CULL_FACE: glState.cullFace = on; break;
    case GL_BLEND: glState.blend = on; break;
    case GL_TEXTURE_2D: glState.texture2d = on; break;
    case GL_FOG: glState.fog = on; break;
    case GL_LINE_SMOOTH: glState.lineSmooth = on; break;
    default: break;
    }
}

} // namespace

void glEnable(GLenum capability) {
    set(capability, true);
}

void glDisable(GLenum capability) {
    set(capability, false);
}

void glDepthFunc(GLenum function) {
    glState.depthFunction = function;
}

void glCullFace(GLenum face) {
    glState.culledFace = face;
}

void glBlendFunc(GLenum source, GLenum target) {
    glState.blendSource = source;
    glState.blendTarget = target;
}

void glLineWidth(GLfloat width) {
    glState.lineWidth = width;
}

// The mode is GL_LINEAR in this game.
void glFogf(GLenum name, GLfloat value) {
    if (name == GL_FOG_START) { glState.fogStart = value; }
    if (name == GL_FOG_END) { glState.fogEnd = value; }
}

void glFogfv(GLenum name, const GLfloat* values) {
    if (name == GL_FOG_COLOR) { std::copy_n(values, 4, glState.fogColour); }
}

void glTexEnvf(GLenum, GLenum name, GLfloat value) {
    if (name == GL_TEXTURE_ENV_MODE) { glState.textureMode = static_cast<GLenum>(value); }
}

void glBindTexture(GLenum, GLuint texture) {
    glState.boundTexture = texture;
}

void glHint(GLenum, GLenum) {} // smooth lines and fog are always the best ones

void glClearColor(GLclampf red, GLclampf green, GLclampf blue, GLclampf alpha) {
    const GLclampf colour[] = {red, green, blue, alpha};
    std::copy_n(colour, 4, glState.clearColour);
}

void glClearDepth(GLclampd depth) {
    glState.clearDepth = static_cast<float>(depth);
}

void glClear(GLbitfield buffers) {
    flushBatch();
    const float* colour = glState.clearColour;
    pageClear(buffers, colour[0], colour[1], colour[2], colour[3], glState.clearDepth);
}

void glFlush() {} // SwapBuffers shows what was drawn
