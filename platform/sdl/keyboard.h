// Keys as the game names them.
#pragma once

#include <SDL.h>

// The virtual-key code of a key that was pressed, 0 when it has none.
int virtualKeyOf(const SDL_Keysym& pressed);
