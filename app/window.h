// The one window of the game: what it does with each message, and the tick that drives play.
#pragma once

#include "platform/windows_api.h"

// The window procedure. 0 for every message that the game handles; the system does the rest.
LRESULT CALLBACK GameWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
