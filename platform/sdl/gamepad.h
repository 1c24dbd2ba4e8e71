// Gamepads, as SDL's database of game controllers knows them. They stand for keys: the left stick
// and the cross for the arrow keys, A and the two triggers for Shift, A also for Return, Start and
// B for Escape. A gamepad may be plugged in and out at any time, and several work together.
//
// SDL centres the sticks and releases the buttons while the game's window has no focus.
#pragma once

#include <SDL.h>

// Starts to look for gamepads. Without them, or without access to them, nothing happens.
void startGamepads();

// Handles an event of a gamepad and posts the keys that it presses, as input of the game's window.
// Does nothing with any other event.
void handleGamepadEvent(const SDL_Event& event);

// The same, but posts nothing. For a message box, which has the player's attention.
void followGamepads(const SDL_Event& event);

// Returns true while a gamepad holds the key with that virtual-key code.
bool isHeldOnGamepad(int key);

// Returns true for a button that answers a message box: A, B or Start.
bool answersBox(const SDL_ControllerButtonEvent& button);
