// The record of the game's one window. window.h opens and closes the window; full_screen.h places
// it on the desktop; surface.h gives it OpenGL; input.h follows its focus.
#pragma once

#include <string>

#include <SDL.h>

#include "platform/common/provider.h"
#include "platform/windows_api.h"

// Stands for the window's drawing surface. Its address is what the game is given.
struct DeviceContextHandle {};

// Set by CreateWindowExA, and reset when the window closes.
struct WindowHandle {
    SDL_Window* sdl = nullptr;         // null while there is no window
    WNDPROC procedure = nullptr;       // the game's window procedure
    std::string glFailure;             // why the window cannot show OpenGL; empty when it can
    DeviceContextHandle deviceContext; // what GetDC returns
    bool shown = false;                // on the desktop, perhaps minimised or covered
    bool hasKeyboard = false;          // as the window system reports it
    bool focused = false;              // the last focus message posted was WM_SETFOCUS
    bool needsPaint = false;           // WM_PAINT is due
};

extern WindowHandle gameWindow;

// Returns true when there is a window on the desktop that is neither hidden nor minimised.
bool isWindowVisible();
