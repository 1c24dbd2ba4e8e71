#include "platform/sdl/framebuffer.h"

#include <SDL.h>

#include "platform/display_mode.h"
#include "platform/sdl/letterbox.h"

namespace {

template <typename Function>
bool load(Function& function, const char* name) {
    function = reinterpret_cast<Function>(SDL_GL_GetProcAddress(name));
    return function != nullptr;
}

// SDL_GL_GetProcAddress may return an address for any name, so the version or the extension
// decides.
bool hasFramebufferObjects() {
    const auto* version = reinterpret_cast<const char*>(glGetString(GL_VERSION));
    return (version != nullptr && SDL_atoi(version) >= 3) ||
           SDL_GL_ExtensionSupported("GL_ARB_framebuffer_object") == SDL_TRUE;
}

void clearErrors() {
    while (glGetError() != GL_NO_ERROR) {}
}

// A core context refuses the fixed-function pipeline, matrix modes among it.
bool hasFixedPipeline() {
    clearErrors();
    glMatrixMode(GL_MODELVIEW);
    return glGetError() == GL_NO_ERROR;
}

} // namespace

bool Framebuffer::loadFunctions() {
    return load(genFramebuffers, "glGenFramebuffers") &&
           load(deleteFramebuffers, "glDeleteFramebuffers") &&
           load(bindFramebuffer, "glBindFramebuffer") &&
           load(checkFramebufferStatus, "glCheckFramebufferStatus") &&
           load(framebufferRenderbuffer, "glFramebufferRenderbuffer") &&
           load(blitFramebuffer, "glBlitFramebuffer") &&
           load(genRenderbuffers, "glGenRenderbuffers") &&
           load(deleteRenderbuffers, "glDeleteRenderbuffers") &&
           load(bindRenderbuffer, "glBindRenderbuffer") &&
           load(renderbufferStorage, "glRenderbufferStorage");
}

void Framebuffer::createBuffers() {
    genFramebuffers(1, &name);
    bindFramebuffer(GL_FRAMEBUFFER, name);
    genRenderbuffers(1, &colour);
    bindRenderbuffer(GL_RENDERBUFFER, colour);
    renderbufferStorage(GL_RENDERBUFFER, GL_RGB565, screenWidth, screenHeight);
    framebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, colour);
    genRenderbuffers(1, &depth);
    bindRenderbuffer(GL_RENDERBUFFER, depth);
    renderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT16, screenWidth, screenHeight);
    framebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, depth);
}

bool Framebuffer::create(std::string& reason) {
    if (!hasFixedPipeline()) {
        reason =
            "The OpenGL of this system has no compatibility profile, which the game draws with.";
        return false;
    }
    if (!hasFramebufferObjects() || !loadFunctions()) {
        reason = "The OpenGL of this system has no framebuffer objects, which the game draws on.";
        return false;
    }
    createBuffers();
    if (checkFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE) {
        glViewport(0, 0, screenWidth, screenHeight);
        glScissor(0, 0, screenWidth, screenHeight);
        return true;
    }
    release();
    reason = "The OpenGL of this system cannot draw on a 640 x 480 surface in 16-bit colour.";
    return false;
}

void Framebuffer::bind() const {
    bindFramebuffer(GL_FRAMEBUFFER, name);
}

void Framebuffer::copyToWindow(int windowWidth, int windowHeight) const {
    const PixelRect picture = letterbox(windowWidth, windowHeight);
    const bool scaled = picture.width != screenWidth || picture.height != screenHeight;
    glPushAttrib(GL_COLOR_BUFFER_BIT | GL_SCISSOR_BIT);
    bindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
    glDisable(GL_SCISSOR_TEST);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glClearColor(0.0F, 0.0F, 0.0F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT);
    blitFramebuffer(0, 0, screenWidth, screenHeight, picture.x, picture.y,
                    picture.x + picture.width, picture.y + picture.height, GL_COLOR_BUFFER_BIT,
                    scaled ? GL_LINEAR : GL_NEAREST);
    bindFramebuffer(GL_DRAW_FRAMEBUFFER, name); // glPopAttrib restores this one's draw buffer
    glPopAttrib();
    bindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
}

void Framebuffer::release() {
    if (name == 0) { return; }
    bindFramebuffer(GL_FRAMEBUFFER, 0);
    deleteFramebuffers(1, &name);
    deleteRenderbuffers(1, &colour);
    deleteRenderbuffers(1, &depth);
    name = colour = depth = 0;
}
