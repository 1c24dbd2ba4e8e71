// The table of virtual-key codes.
#pragma once

#include <SDL.h>

// Returns the virtual-key code of the key with that position (scancode) and that label (keycode), 0
// when it has none. A Latin letter on the label decides, so that letters follow the layout of the
// keyboard. For all other keys the position decides; where it says nothing, a few signs of
// punctuation count by their label. The keypad gives digits while the number lock is on, and
// arrows, Home, Page Up and so on while it is off. Left and right Shift, Control and Alt have one
// code each.
int virtualKeyFor(SDL_Scancode scancode, SDL_Keycode label, bool numberLock);
