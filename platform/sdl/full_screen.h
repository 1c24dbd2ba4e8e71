// The window's place on the desktop. The desktop keeps its own display mode: while the game's mode
// is set, the window covers the whole screen of its display, and surface.h scales the picture.
#pragma once

struct WindowSize {
    int width;  // points
    int height; // points
};

// Sets or resets the game's display mode. A window that is shown covers the screen at once, or is
// hidden at once; a hidden window does so when it is shown.
void setFullScreen(bool on);

// Shows the game's window, on the full screen while the game's display mode is set, and asks for
// the keyboard focus. There must be a window.
void showOnDesktop();

// Changes between the full screen and an ordinary window. Does nothing while there is no window.
void toggleFullScreen();

// Returns the size of an ordinary window: 640 x 480, or twice that where the desktop has room.
WindowSize windowedSize();
