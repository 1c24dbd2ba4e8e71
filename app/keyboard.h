// The keyboard commands and the menu (state/menu.h). Steering and turbo are not here:
// updateSimulation samples those keys.
#pragma once

#include "platform/windows_api.h"

// Handles a key-down message: stores the key for the name entry, then runs its command. A menu line
// that does the same as a key posts that key to the window, so its command runs when that message
// arrives.
void handleKeyDown(WPARAM key);
