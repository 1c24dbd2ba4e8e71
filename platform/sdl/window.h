// The game's one window and what the machine knows of it.
#pragma once

#include <string>

#include <SDL.h>

#include "platform/windows_api.h"

// The drawing surface of the window; surface.cpp fills it with life.
struct DeviceContextHandle {};

struct WindowHandle {
    SDL_Window* sdl = nullptr; // null while there is no window
    WNDPROC procedure = nullptr;
    std::string glFailure; // why the window cannot show OpenGL; empty when it can
    DeviceContextHandle deviceContext;
    bool visible = false;
    bool focused = false;
    bool needsPaint = false;
};

// The window, null before CreateWindowExA and after its end.
HWND currentWindow();

// Whether the window is on the desktop: neither hidden nor minimised.
bool isWindowVisible();

// Makes the window, where there is one, cover the screen; or takes it off the screen.
void coverScreen();
void uncoverScreen();

// Alt+Enter: from the full screen to a window and back.
void toggleFullScreen();

// Ends the window without asking or telling the game.
void closeWindow();

// Does what a system does on a close request that the game leaves to it: tells the game with
// WM_DESTROY and ends the window.
void destroyWindow();
