// The surface that the game draws on: 640 x 480 pixels of GL_RGB565 with a 16-bit depth buffer,
// whatever the window's own pixels are. Every operation needs the OpenGL context to be current.
#pragma once

#include <string>

#include <GL/gl.h>
#include <GL/glext.h>

struct Framebuffer {
    // Makes the surface. Returns false, and why as a whole sentence, where OpenGL has no fixed
    // pipeline or no framebuffer objects or refuses this one; nothing is left behind then.
    bool make(std::string& why);

    // Sends the game's drawing and reading to the surface.
    void bind() const;

    // Copies the surface into a window of that many pixels, 4:3 between black bars, and leaves
    // every state of the game as it was. The caller swaps and binds again.
    void copyToWindow(int windowWidth, int windowHeight) const;

    void release();

private:
    bool loadFunctions();
    void makeBuffers();

    GLuint name = 0;
    GLuint colour = 0;
    GLuint depth = 0;
    PFNGLGENFRAMEBUFFERSPROC genFramebuffers = nullptr;
    PFNGLDELETEFRAMEBUFFERSPROC deleteFramebuffers = nullptr;
    PFNGLBINDFRAMEBUFFERPROC bindFramebuffer = nullptr;
    PFNGLCHECKFRAMEBUFFERSTATUSPROC checkFramebufferStatus = nullptr;
    PFNGLFRAMEBUFFERRENDERBUFFERPROC framebufferRenderbuffer = nullptr;
    PFNGLBLITFRAMEBUFFERPROC blitFramebuffer = nullptr;
    PFNGLGENRENDERBUFFERSPROC genRenderbuffers = nullptr;
    PFNGLDELETERENDERBUFFERSPROC deleteRenderbuffers = nullptr;
    PFNGLBINDRENDERBUFFERPROC bindRenderbuffer = nullptr;
    PFNGLRENDERBUFFERSTORAGEPROC renderbufferStorage = nullptr;
};
