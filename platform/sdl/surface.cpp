#include "platform/sdl/surface.h"

#include <algorithm>
#include <cstring>
#include <string>

#include <SDL.h>

#include "platform/sdl/display.h"
#include "platform/sdl/errors.h"
#include "platform/sdl/frame_pace.h"
#include "platform/sdl/framebuffer.h"
#include "platform/sdl/window.h"
#include "platform/windows_api.h"

struct GlContextHandle {
    SDL_GLContext sdl = nullptr; // null while there is no context
    Framebuffer framebuffer;
    bool given = false; // the game has it
};

namespace {

constexpr int onlyFormat = 1;

GlContextHandle surface;

constexpr PIXELFORMATDESCRIPTOR describeFormat() {
    constexpr DWORD drawToWindow = 0x04;
    PIXELFORMATDESCRIPTOR format = {};
    format.nSize = sizeof format;
    format.nVersion = 1;
    format.dwFlags = PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER | drawToWindow;
    format.iPixelType = PFD_TYPE_RGBA;
    format.cColorBits = displayDepth;
    format.cRedBits = 5;
    format.cRedShift = 11;
    format.cGreenBits = 6;
    format.cGreenShift = 5;
    format.cBlueBits = 5;
    format.cBlueShift = 0;
    format.cDepthBits = 16;
    format.iLayerType = PFD_MAIN_PLANE;
    return format;
}

HWND windowOf(HDC deviceContext) {
    const HWND window = currentWindow();
    return window && deviceContext == &window->deviceContext ? window : nullptr;
}

// The game needs the fixed pipeline. Old systems do not know the word profile and give it unasked.
SDL_GLContext openContext(SDL_Window* window) {
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_PROFILE_MASK, SDL_GL_CONTEXT_PROFILE_COMPATIBILITY);
    SDL_GLContext context = SDL_GL_CreateContext(window);
    if (context) { return context; }
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_PROFILE_MASK, 0);
    return SDL_GL_CreateContext(window);
}

bool failPrepare(const std::string& why) {
    stopSurface();
    setFatalError(why);
    return false;
}

// Makes context and surface unless they are there, and leaves them unbound: the game binds.
bool prepareSurface(const WindowHandle& window) {
    if (surface.sdl) { return true; }
    surface.sdl = window.glFailure.empty() ? openContext(window.sdl) : nullptr;
    if (!surface.sdl) {
        const std::string why = window.glFailure.empty() ? SDL_GetError() : window.glFailure;
        return failPrepare("OpenGL could not be started: " + why + ".");
    }
    std::string why;
    if (!surface.framebuffer.make(why)) { return failPrepare(why); }
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
    return surface.sdl && SDL_GL_GetCurrentContext() == surface.sdl;
}

} // namespace

void prepareSurfaceAttributes() {
    SDL_GL_SetAttribute(SDL_GL_DOUBLEBUFFER, 1);
    SDL_GL_SetAttribute(SDL_GL_DEPTH_SIZE, 0);
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MAJOR_VERSION, 2);
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MINOR_VERSION, 1);
}

void stopSurface() {
    if (!surface.sdl) { return; }
    if (isCurrent()) { surface.framebuffer.release(); }
    SDL_GL_DeleteContext(surface.sdl);
    surface = {};
}

HDC WINAPI GetDC(HWND window) {
    return window && window == currentWindow() ? &window->deviceContext : nullptr;
}

int WINAPI ReleaseDC(HWND window, HDC deviceContext) {
    return window && window == windowOf(deviceContext) ? 1 : 0;
}

int WINAPI ChoosePixelFormat(HDC deviceContext, const PIXELFORMATDESCRIPTOR* wanted) {
    const HWND window = windowOf(deviceContext);
    if (!window || !wanted) {
        setLastError("There is no window to choose a pixel format for.");
        return 0;
    }
    return prepareSurface(*window) ? onlyFormat : 0;
}

int WINAPI DescribePixelFormat(HDC deviceContext, int format, UINT size,
                               PIXELFORMATDESCRIPTOR* description) {
    static constexpr PIXELFORMATDESCRIPTOR known = describeFormat();
    if (!windowOf(deviceContext) || format != onlyFormat) { return 0; }
    if (description) {
        std::memcpy(description, &known, std::min<std::size_t>(size, sizeof known));
    }
    return onlyFormat; // also the highest number there is
}

BOOL WINAPI SetPixelFormat(HDC deviceContext, int format, const PIXELFORMATDESCRIPTOR*) {
    if (windowOf(deviceContext) && format == onlyFormat && surface.sdl) { return TRUE; }
    setLastError("The window has no such pixel format.");
    return FALSE;
}

HGLRC WINAPI wglCreateContext(HDC deviceContext) {
    const HWND window = windowOf(deviceContext);
    if (!window || surface.given || hadFatalError() || !prepareSurface(*window)) { return nullptr; }
    surface.given = true;
    return &surface;
}

BOOL WINAPI wglMakeCurrent(HDC deviceContext, HGLRC context) {
    const HWND window = windowOf(deviceContext);
    if (!context) { return SDL_GL_MakeCurrent(nullptr, nullptr) == 0 ? TRUE : FALSE; }
    if (!window || context != &surface || !surface.sdl) { return FALSE; }
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
    if (!window || !isCurrent()) { return FALSE; }
    if (isWindowVisible()) {
        showPicture(*window);
        waitForNextFrame();
    } else {
        glFlush(); // OpenGL keeps a queue of its own
        waitWhileHidden();
    }
    return TRUE;
}
