// The message box of the provider's own: a window without OpenGL that it paints itself, so that a
// box appears on any display, with no font and no helper program installed.
//
// Return, Enter on the keypad, space, Escape and a click on "OK" close the box when they are let
// go, so that nothing of them is left for the game; the close button and Alt+F4 do the same. A
// request to end the program (SIGTERM, or the close button of the game's window) closes it too and
// stays in SDL's queue for the game. All other input is swallowed, and no key counts as held
// afterwards. Music plays on; timers wait.
//
// Where nobody can see or answer (SDL's offscreen and dummy drivers) the box takes the events that
// wait already and closes.
#pragma once

#include <bitset>

#include <SDL.h>

#include "platform/sdl/box_picture.h"

struct MessageBox {
    // Opens and paints the box, in front of the game's window `over` (null: there is none).
    // Returns false where no window can be opened or painted; nothing is left then.
    bool open(const BoxContent& box, SDL_Window* over);

    // Waits, without keeping the processor busy, until an event closes the box.
    void wait();

    // Acts on one event. Returns true when it closes the box.
    bool handle(const SDL_Event& event);

    // Closes the window, and gives the keyboard back to the game's window where the box had it.
    void close();

    SDL_Window* sdl = nullptr; // null while the box is closed
    SDL_Rect button = {};      // pixels of the window's surface

private:
    bool paint();
    bool handleWindowEvent(const SDL_WindowEvent& event);
    void handleKeyDown(const SDL_KeyboardEvent& event);
    bool isOnButton(const SDL_MouseButtonEvent& event) const;

    BoxContent words;
    int scale = 1; // wanted, on a display of one pixel a point
    SDL_Window* gameWindow = nullptr;
    SDL_Window* drawnOn = nullptr; // where OpenGL drew before the box opened
    SDL_GLContext context = nullptr;
    int cursor = SDL_DISABLE;
    Uint64 opened = 0; // milliseconds since the start of SDL
    std::bitset<SDL_NUM_SCANCODES> heldBefore;
    SDL_Scancode pressed = SDL_SCANCODE_UNKNOWN; // closes the box when it is let go
    bool clicking = false;                       // the mouse went down on the button
};
