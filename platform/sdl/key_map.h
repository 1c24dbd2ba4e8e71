// Which virtual-key code a key has.
#pragma once

#include <SDL.h>

// Letters go by the label on the key, so that they type what they say on every layout; where a
// label is no Latin letter, and for all other keys, the place on the keyboard decides. The keypad
// gives digits while the number lock is on, and otherwise arrows and their neighbours. Left and
// right Shift, Control and Alt are one key each. Returns 0 for a key without a code.
int virtualKeyFor(SDL_Scancode place, SDL_Keycode label, bool numberLock);
