// The display and the start of OpenGL: 640 x 480 pixels in 16-bit colour, double-buffered, with a
// 16-bit depth buffer; and the data that the game needs before it can show anything.
//
// Every failure is told to the player in a message box.
#pragma once

#include "platform/windows_api.h"

// The display mode looked at last, in the end the game's own. The game sets its size, and otherwise
// reads and writes only colour bits, width, height and the mask of fields.
extern DEVMODEA displayMode;

// Puts the primary display into that mode. False after a message; the game then starts all the
// same, in the mode that the display has.
bool switchDisplayMode();

// Gives the window's device context the pixel format. False after a message.
bool setupPixelFormat(HDC deviceContext);

// Makes the OpenGL context, reads the level list, the best times and the font, and sets OpenGL's
// start state. False after the first failure's message.
bool initGraphicsAndData(HWND window);
