// The message queue. Posted messages come out first, then the request to quit, then input, then
// painting, then timers.
#pragma once

#include "platform/windows_api.h"

// Puts a message of the player or the window system at the end of the input.
void postInput(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

// Takes messages that were posted with that number and wParam out of the queue again.
void removePostedMessages(UINT message, WPARAM wParam);
