// The record of the game's one window, which is the page.
#pragma once

#include "platform/windows_api.h"

// Stands for the page's drawing surface. Its address is what the game is given.
struct DeviceContextHandle {};

// Set by CreateWindowExA, and reset when the window closes.
struct WindowHandle {
    bool open = false;
    WNDPROC procedure = nullptr; // the game's window procedure
    DeviceContextHandle deviceContext;
    bool shown = false;
    bool focused = false;    // the game has been told that it has the keyboard
    bool needsPaint = false; // WM_PAINT is due
};

extern WindowHandle gameWindow;
