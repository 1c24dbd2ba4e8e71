// What each provider defines for the files of this folder. A provider has one window; these
// operations and the functions of windows_api.h in this folder are called on the game's thread.
#pragma once

#include <cstdint>

#include "platform/windows_api.h"

// Returns the milliseconds since the provider started. Messages and timers use this clock.
std::uint64_t uptime();

// Takes what the player has done since the last call and posts it as input. PeekMessageA calls it
// when no posted message waits.
void pollInput();

// Returns the game's window, null while there is none.
HWND currentWindow();

// Returns true while WM_PAINT is due. There must be a window.
bool needsPaint();

// Calls the game's window procedure with the message. There must be a window.
LRESULT callWindowProcedure(UINT message, WPARAM wParam, LPARAM lParam);
