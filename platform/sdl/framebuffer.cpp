#include "platform/sdl/framebuffer.h"

#include <SDL.h>

#include "platform/display_mode.h"

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

void clearWindow() {
    glClearColor(0.0F, 0.0F, 0.0F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT);
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

// Makes the colours of the framebuffer object that is bound.
GLuint Framebuffer::createColour(GLenum format, int width, int height) const {
    GLuint buffer = 0;
    genRenderbuffers(1, &buffer);
    bindRenderbuffer(GL_RENDERBUFFER, buffer);
    renderbufferStorage(GL_RENDERBUFFER, format, width, height);
    framebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, buffer);
    return buffer;
}

void Framebuffer::createBuffers() {
    genFramebuffers(1, &name);
    bindFramebuffer(GL_FRAMEBUFFER, name);
    colour = createColour(GL_RGB565, screenWidth, screenHeight);
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

// Leaves the enlarged picture as the one to copy from. Returns false when OpenGL has no room for
// it.
bool Framebuffer::enlarge(int scale) {
    const int width = scale * screenWidth;
    const int height = scale * screenHeight;
    if (enlargedScale != scale) {
        releaseEnlarged();
        genFramebuffers(1, &enlarged);
        bindFramebuffer(GL_FRAMEBUFFER, enlarged);
        enlargedColour = createColour(GL_RGB8, width, height);
        enlargedScale = scale;
    }
    bindFramebuffer(GL_FRAMEBUFFER, enlarged);
    const bool complete = checkFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    bindFramebuffer(GL_READ_FRAMEBUFFER, name);
    if (!complete) { return false; }
    blitFramebuffer(0, 0, screenWidth, screenHeight, 0, 0, width, height, GL_COLOR_BUFFER_BIT,
                    GL_NEAREST);
    bindFramebuffer(GL_READ_FRAMEBUFFER, enlarged);
    return true;
}

void Framebuffer::copyPicture(const PixelRect& picture) {
    const int scale = (picture.width + screenWidth - 1) / screenWidth;
    const bool isWhole =
        picture.width == scale * screenWidth && picture.height == scale * screenHeight;
    const int size = scale > 1 && !isWhole && enlarge(scale) ? scale : 1;
    bindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
    blitFramebuffer(0, 0, size * screenWidth, size * screenHeight, picture.x, picture.y,
                    picture.x + picture.width, picture.y + picture.height, GL_COLOR_BUFFER_BIT,
                    isWhole ? GL_NEAREST : GL_LINEAR);
}

void Framebuffer::copyToWindow(int windowWidth, int windowHeight) {
    glPushAttrib(GL_COLOR_BUFFER_BIT | GL_SCISSOR_BIT);
    bindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
    glDisable(GL_SCISSOR_TEST);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    const PixelRect picture = letterbox(windowWidth, windowHeight);
    if (picture.width != windowWidth || picture.height != windowHeight) { clearWindow(); }
    copyPicture(picture);
    bindFramebuffer(GL_FRAMEBUFFER, name); // glPopAttrib restores this one's draw buffer
    glPopAttrib();
    bindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
}

void Framebuffer::releaseEnlarged() {
    if (enlarged == 0) { return; }
    deleteFramebuffers(1, &enlarged);
    deleteRenderbuffers(1, &enlargedColour);
    enlarged = enlargedColour = 0;
    enlargedScale = 0;
}

void Framebuffer::release() {
    if (name == 0) { return; }
    bindFramebuffer(GL_FRAMEBUFFER, 0);
    releaseEnlarged();
    deleteFramebuffers(1, &name);
    deleteRenderbuffers(1, &colour);
    deleteRenderbuffers(1, &depth);
    name = colour = depth = 0;
}
