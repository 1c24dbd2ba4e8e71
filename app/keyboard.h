// The keyboard commands, and the menu (state/menu.h) that they drive.
//
// Steering and turbo are not here: updateSimulation samples those keys.
#pragma once

#include "platform/windows_api.h"

// Answers a key-down message: remembers the key for the name entry, then runs its command. Menu
// lines that repeat a key's command post that key to the window, so it runs on a later turn.
void handleKeyDown(WPARAM key);
