// Device contexts, pixel formats, the OpenGL context and SwapBuffers. The page starts the program
// only after it has WebGL 2, so nothing here fails for the lack of it.

#include "platform/common/errors.h"
#include "platform/common/pixel_format.h"
#include "platform/common/provider.h"
#include "platform/web/frame.h"
#include "platform/web/gl_batch.h"
#include "platform/web/page_calls.h"
#include "platform/web/window_handle.h"
#include "platform/windows_api.h"

// The one context; HGLRC is its address.
struct GlContextHandle {
    bool given = false; // wglCreateContext has returned it
};

namespace {

GlContextHandle context;

bool isSurface(HDC deviceContext) {
    return currentWindow() != nullptr && deviceContext == &gameWindow.deviceContext;
}

} // namespace

HDC WINAPI GetDC(HWND window) {
    return window != nullptr && window == currentWindow() ? &window->deviceContext : nullptr;
}

int WINAPI ReleaseDC(HWND window, HDC deviceContext) {
    return window == currentWindow() && isSurface(deviceContext) ? 1 : 0;
}

int WINAPI ChoosePixelFormat(HDC deviceContext, const PIXELFORMATDESCRIPTOR* wanted) {
    if (isSurface(deviceContext) && wanted != nullptr) { return onlyPixelFormat; }
    setLastError("There is no window to choose a pixel format for.");
    return 0;
}

int WINAPI DescribePixelFormat(HDC deviceContext, int format, UINT size,
                               PIXELFORMATDESCRIPTOR* description) {
    if (!isSurface(deviceContext) || format != onlyPixelFormat) { return 0; }
    copyPixelFormat(size, description);
    return onlyPixelFormat;
}

BOOL WINAPI SetPixelFormat(HDC deviceContext, int format, const PIXELFORMATDESCRIPTOR*) {
    if (isSurface(deviceContext) && format == onlyPixelFormat) { return TRUE; }
    setLastError("The window has no such pixel format.");
    return FALSE;
}

HGLRC WINAPI wglCreateContext(HDC deviceContext) {
    if (!isSurface(deviceContext) || context.given) { return nullptr; }
    context.given = true;
    return &context;
}

BOOL WINAPI wglMakeCurrent(HDC, HGLRC wanted) {
    return wanted == nullptr || (wanted == &context && context.given) ? TRUE : FALSE;
}

BOOL WINAPI wglDeleteContext(HGLRC wanted) {
    if (wanted != &context || !context.given) { return FALSE; }
    context.given = false;
    return TRUE;
}

BOOL WINAPI SwapBuffers(HDC deviceContext) {
    noteFrameShown(); // also without a surface, or the game would never let the browser work
    if (!isSurface(deviceContext) || !context.given) { return FALSE; }
    flushBatch();
    pageShowPicture();
    return TRUE;
}
