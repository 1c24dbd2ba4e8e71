#include "platform/sdl/x11_errors.h"

#include <SDL.h>

namespace {

using Handler = int (*)(void* display, void* error);
using SetHandler = Handler (*)(Handler handler);

Handler before = nullptr;

int ignore(void*, void*) {
    return 0; // Xlib does not look at it
}

// Null without Xlib, for which SDL's own library may be built as well.
SetHandler findSetHandler() {
    void* xlib = SDL_LoadObject("libX11.so.6");
    return xlib != nullptr
               ? reinterpret_cast<SetHandler>(SDL_LoadFunction(xlib, "XSetErrorHandler"))
               : nullptr;
}

Handler setHandler(Handler handler) {
    static const SetHandler set = findSetHandler();
    return set != nullptr ? set(handler) : nullptr;
}

} // namespace

XErrorsIgnored::XErrorsIgnored() {
    before = setHandler(ignore);
}

XErrorsIgnored::~XErrorsIgnored() {
    setHandler(before);
}
