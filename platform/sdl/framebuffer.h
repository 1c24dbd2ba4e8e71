// The framebuffer object that the game draws on: 640 x 480 pixels of GL_RGB565 with a 16-bit depth
// buffer, whatever the size and the format of the window. Call every operation with the OpenGL
// context current.
#pragma once

#include <string>

#include <GL/gl.h>
#include <GL/glext.h>

#include "platform/sdl/letterbox.h"

struct Framebuffer {
    // Creates the object, binds it, and sets viewport and scissor box to all of it. Returns false
    // with a whole sentence in `reason` when OpenGL has no fixed-function pipeline or no
    // framebuffer objects, or when it refuses this one; nothing is allocated then.
    bool create(std::string& reason);

    // Directs drawing and reading to the object.
    void bind() const;

    // Copies the picture into a window of that many pixels, scaled to 4:3, with black bars around
    // it. It is enlarged by a whole number first and then reduced linearly, so that its pixels have
    // sharp edges at any size. Only the framebuffer binding differs afterwards: swap the window's
    // buffers, then bind().
    void copyToWindow(int windowWidth, int windowHeight);

    // Deletes the object, if there is one.
    void release();

private:
    bool loadFunctions();
    void createBuffers();
    GLuint createColour(GLenum format, int width, int height) const;
    bool enlarge(int scale);
    void releaseEnlarged();
    void copyPicture(const PixelRect& picture);

    GLuint name = 0;   // of the framebuffer object; 0: there is none
    GLuint colour = 0; // renderbuffers
    GLuint depth = 0;
    GLuint enlarged = 0;       // a framebuffer object for the enlarged picture
    GLuint enlargedColour = 0; // its renderbuffer
    int enlargedScale = 0;     // the size of that, in times of the picture; 0: there is none
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
