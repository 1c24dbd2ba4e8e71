// Virtual-key codes of keys as SDL reports them.
#pragma once

#include <SDL.h>

// Returns the virtual-key code of a key, 0 when it has none.
int virtualKeyOf(const SDL_Keysym& pressed);
