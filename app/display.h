// The display and the start of OpenGL, in the mode of platform/display_mode.h, double-buffered; and
// the data that the game needs before it can show anything. Failures are reported in message boxes.
#pragma once

#include "platform/windows_api.h"

// The display mode read last; after switchDisplayMode the game's own. The game sets dmSize, and
// otherwise uses only colour bits, width, height and the mask of fields.
extern DEVMODEA displayMode;

// Puts the primary display into that mode. Returns false, after a message for the results that have
// one, when it cannot; the game then starts in the mode that the display has.
bool switchDisplayMode();

// Gives the window's device context the pixel format. Returns false after a message.
bool setupPixelFormat(HDC deviceContext);

// Sets the pixel format, makes the OpenGL context, reads the level list, the best times and the
// font, and sets OpenGL's start state. Returns false, after a message, at the first data that
// cannot be read. Without a pixel format the program ends once its messages are handled.
bool initGraphicsAndData(HWND window);
