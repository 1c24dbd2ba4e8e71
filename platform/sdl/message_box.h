// A message box that needs no installed font, no helper program and no OpenGL: a window of its own,
// painted with the typeface of box_font.h.
//
// Return, Enter on the keypad, Space, Escape, Alt+F4, a click on "OK" and A, B or Start of a
// gamepad close the box when the key or the button is released, so that the game sees nothing of
// them. The close button of the box closes it at once. So does a request to end the program
// (SIGTERM, SIGINT, or the close button of the game's window), which stays in SDL's queue for the
// game. All other keys and clicks are dropped, and no key counts as held afterwards. Music plays
// on. Timers do not fire while the box is open.
//
// Where nobody can see or answer the box (isDisplayVisible in video.h), it handles the events that
// are waiting and closes.
#pragma once

#include <bitset>

#include <SDL.h>

#include "platform/sdl/box_picture.h"

struct MessageBox {
    // Opens and paints the box, in front of the game's window `over` (null: there is none). Returns
    // false when no window can be opened or painted; the box is closed then.
    bool open(const BoxContent& box, SDL_Window* over);

    // Handles events until one of them closes the box. Uses no processor time between them.
    void wait();

    // Handles one event. Returns true when it closes the box.
    bool handle(const SDL_Event& event);

    // Closes the window. The game's window gets the keyboard focus if the box had it, and OpenGL
    // draws on the same window as before.
    void close();

    SDL_Window* sdl = nullptr; // null while the box is closed
    SDL_Rect button = {};      // "OK", in pixels of the window's surface

private:
    bool createWindow(int display);
    void show();
    bool paint();
    bool handleWindowEvent(const SDL_WindowEvent& event);
    void handleKeyDown(const SDL_KeyboardEvent& event);
    bool isOnButton(const SDL_MouseButtonEvent& event) const;

    BoxContent content;
    int scale = 1;                  // of the typeface, on a display with one pixel in a point
    SDL_Window* parent = nullptr;   // the game's window; null: there is none, or it is hidden
    SDL_Window* glWindow = nullptr; // where OpenGL drew before the box opened
    SDL_GLContext glContext = nullptr;
    int cursor = SDL_DISABLE;                    // as it was before
    Uint64 opened = 0;                           // milliseconds since the start of SDL
    std::bitset<SDL_NUM_SCANCODES> heldBefore;   // keys that were down when the box opened
    SDL_Scancode pressed = SDL_SCANCODE_UNKNOWN; // closes the box when it is released
    bool pressing = false;                       // a button of a gamepad that closes the box
    bool clicking = false;                       // the mouse button went down on "OK"
};
