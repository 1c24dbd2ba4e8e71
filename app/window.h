// The one window of the game: how it handles each message, and the tick.
#pragma once

#include "platform/windows_api.h"

// The window procedure. Returns 0 for the messages that the game handles; DefWindowProcA handles
// the others.
LRESULT CALLBACK GameWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
