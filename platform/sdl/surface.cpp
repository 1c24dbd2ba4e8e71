#include "platform/sdl/surface.h"

#include <string>

#include <SDL.h>

#include "platform/common/errors.h"
#include "platform/common/pixel_format.h"
#include "platform/sdl/frame_pace.h"
#include "platform/sdl/framebuffer.h"
#include "platform/sdl/still_picture.h"
#include "platform/sdl/window_handle.h"
#include "platform/windows_api.h"

// The one context; HGLRC is its address.
struct GlContextHandle {
    SDL_GLContext sdl = nullptr; // null while there is no context
    Framebuffer framebuffer;
    bool given = false; // wglCreateContext has returned it
};

namespace {

GlContextHandle surface;

HWND windowOf(HDC deviceContext) {
    const HWND window = currentWindow();
    return window != nullptr && deviceContext == &window->deviceContext ? window : nullptr;
}

// The game needs the fixed-function pipeline, which a compatibility profile has. Systems that do
// not know profiles refuse the attribute, and have the pipeline without it.
SDL_GLContext openContext(SDL_Window* window) {
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_PROFILE_MASK, SDL_GL_CONTEXT_PROFILE_COMPATIBILITY);
    SDL_GLContext context = SDL_GL_CreateContext(window);
    if (context != nullptr) { return context; }
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_PROFILE_MASK, 0);
    return SDL_GL_CreateContext(window);
}

bool fail(const std::string& reason) {
    stopSurface();
    setFatalError(reason);
    return false;
}

// Makes the context and the surface unless they exist. Leaves no context current: the game calls
// wglMakeCurrent.
bool prepareSurface(const WindowHandle& window) {
    if (surface.sdl != nullptr) { return true; }
    surface.sdl = window.glFailure.empty() ? openContext(window.sdl) : nullptr;
    if (surface.sdl == nullptr) {
        const std::string cause = window.glFailure.empty() ? SDL_GetError() : window.glFailure;
        return fail("OpenGL could not be started: " + cause + ".");
    }
    std::string reason;
    if (!surface.framebuffer.create(reason)) { return fail(reason); }
    watchPictures();
    SDL_GL_SetSwapInterval(1);
    SDL_GL_MakeCurrent(window.sdl, nullptr);
    return true;
}

void showPicture(const WindowHandle& window) {
    int width = 0;
    int height = 0;
    SDL_GL_GetDrawableSize(window.sdl, &width, &height);
    surface.framebuffer.copyToWindow(width, height);
    SDL_GL_SwapWindow(window.sdl);
    surface.framebuffer.bind();
}

bool isCurrent() {
    return surface.sdl != nullptr && SDL_GL_GetCurrentContext() == surface.sdl;
}

} // namespace

void prepareSurfaceAttributes() {
    SDL_GL_SetAttribute(SDL_GL_DOUBLEBUFFER, 1);
    SDL_GL_SetAttribute(SDL_GL_DEPTH_SIZE, 0);
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MAJOR_VERSION, 2);
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MINOR_VERSION, 1);
}

void stopSurface() {
    if (surface.sdl == nullptr) { return; }
    if (isCurrent()) { surface.framebuffer.release(); }
    SDL_GL_DeleteContext(surface.sdl);
    surface = {};
}

HDC WINAPI GetDC(HWND window) {
    return window != nullptr && window == currentWindow() ? &window->deviceContext : nullptr;
}

int WINAPI ReleaseDC(HWND window, HDC deviceContext) {
    return window != nullptr && window == windowOf(deviceContext) ? 1 : 0;
}

int WINAPI ChoosePixelFormat(HDC deviceContext, const PIXELFORMATDESCRIPTOR* wanted) {
    const HWND window = windowOf(deviceContext);
    if (window == nullptr || wanted == nullptr) {
        setLastError("There is no window to choose a pixel format for.");
        return 0;
    }
    return prepareSurface(*window) ? onlyPixelFormat : 0;
}

int WINAPI DescribePixelFormat(HDC deviceContext, int format, UINT size,
                               PIXELFORMATDESCRIPTOR* description) {
    if (windowOf(deviceContext) == nullptr || format != onlyPixelFormat) { return 0; }
    copyPixelFormat(size, description);
    return onlyPixelFormat;
}

BOOL WINAPI SetPixelFormat(HDC deviceContext, int format, const PIXELFORMATDESCRIPTOR*) {
    if (windowOf(deviceContext) != nullptr && format == onlyPixelFormat && surface.sdl != nullptr) {
        return TRUE;
    }
    setLastError("The window has no such pixel format.");
    return FALSE;
}

HGLRC WINAPI wglCreateContext(HDC deviceContext) {
    const HWND window = windowOf(deviceContext);
    if (window == nullptr || surface.given || hadFatalError() || !prepareSurface(*window)) {
        return nullptr;
    }
    surface.given = true;
    return &surface;
}

BOOL WINAPI wglMakeCurrent(HDC deviceContext, HGLRC context) {
    const HWND window = windowOf(deviceContext);
    if (context == nullptr) { return SDL_GL_MakeCurrent(nullptr, nullptr) == 0 ? TRUE : FALSE; }
    if (window == nullptr || context != &surface || surface.sdl == nullptr) { return FALSE; }
    if (SDL_GL_MakeCurrent(window->sdl, surface.sdl) != 0) { return FALSE; }
    surface.framebuffer.bind();
    return TRUE;
}

BOOL WINAPI wglDeleteContext(HGLRC context) {
    if (context != &surface || !surface.given) { return FALSE; }
    stopSurface();
    return TRUE;
}

BOOL WINAPI SwapBuffers(HDC deviceContext) {
    const HWND window = windowOf(deviceContext);
    if (window == nullptr || !isCurrent()) { return FALSE; }
    if (!isWindowVisible()) {
        glFlush(); // or the commands of hidden frames would pile up
        waitWhileHidden();
    } else if (isPictureStill()) {
        waitWhileStill();
    } else {
        showPicture(*window);
        waitForNextFrame(window->sdl);
    }
    return TRUE;
}
