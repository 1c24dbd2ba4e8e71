// The entry of the program, its window and messages, the keyboard, and message boxes.
#pragma once

#include "platform/windows_api/types.h"

// Entry

// The game's entry. The implementation calls it once, and ends the process with its result as the
// exit code; platform/sdl ends with 1 instead of 0 when there was no display or no OpenGL.
int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, char* commandLine, int showMode);

inline constexpr int SW_SHOW = 5; // the usual value of showMode

// Windows and messages

inline constexpr UINT WM_CREATE = 1;
inline constexpr UINT WM_DESTROY = 2;
inline constexpr UINT WM_SETFOCUS = 7;
inline constexpr UINT WM_KILLFOCUS = 8;
inline constexpr UINT WM_PAINT = 15;
inline constexpr UINT WM_CLOSE = 16;
inline constexpr UINT WM_QUIT = 18;
inline constexpr UINT WM_KEYDOWN = 256;
inline constexpr UINT WM_TIMER = 275;
inline constexpr UINT MM_MCINOTIFY = 953;
inline constexpr UINT WM_USER = 1024; // private messages of a program start here

inline constexpr DWORD WS_POPUP = 0x80000000;
inline constexpr DWORD WS_CLIPSIBLINGS = 0x04000000;
inline constexpr int CW_USEDEFAULT = static_cast<int>(0x80000000);
inline constexpr int COLOR_WINDOW = 5;
inline constexpr UINT PM_REMOVE = 1;

struct WNDCLASSA {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    const char* lpszMenuName;
    const char* lpszClassName;
};

struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

struct PAINTSTRUCT {
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
    BOOL fRestore;
    BOOL fIncUpdate;
    BYTE rgbReserved[32];
};

// Standard cursors are named by a number in place of a pointer.
inline const char* const IDC_ARROW = reinterpret_cast<const char*>(static_cast<UINT_PTR>(32512));

// Returns the icon of that name in the program's resources, null when there is none.
HICON WINAPI LoadIconA(HINSTANCE instance, const char* name);

// Returns the cursor of that name, null on failure; `instance` is null for standard cursors.
HCURSOR WINAPI LoadCursorA(HINSTANCE instance, const char* name);

// Registers the one window class of the game. Returns an identifier, 0 on failure.
ATOM WINAPI RegisterClassA(const WNDCLASSA* windowClass);

// Creates the window, hidden, and sends it WM_CREATE before it returns. Returns null on failure,
// also when WM_CREATE is answered with -1. Position and size are in pixels of the 640 x 480
// display.
HWND WINAPI CreateWindowExA(DWORD extendedStyle, const char* className, const char* title,
                            DWORD style, int x, int y, int width, int height, HWND parent,
                            HMENU menu, HINSTANCE instance, void* parameter);

// Shows the window. Returns TRUE when it was visible before.
BOOL WINAPI ShowWindow(HWND window, int showMode);

// Sends WM_PAINT at once when the window needs painting.
BOOL WINAPI UpdateWindow(HWND window);

// Adds 1 (TRUE) or -1 (FALSE) to a count that starts at 0, and returns it. The mouse cursor is
// visible while the count is 0 or more.
int WINAPI ShowCursor(BOOL show);

// Copies the next message for the window (null: for any) to `message` without waiting, and removes
// it from the queue with PM_REMOVE. `first` and `last` limit the message numbers; 0 and 0 mean all.
// Posted messages come first, then WM_QUIT, input, WM_PAINT, and timers. Returns FALSE when there
// is none.
BOOL WINAPI PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove);

// Translates key messages to characters, which the game does not use.
BOOL WINAPI TranslateMessage(const MSG* message);

// Calls the window procedure with the message, or the callback of a timer that has one. Returns the
// result of the window procedure.
LRESULT WINAPI DispatchMessageA(const MSG* message);

// Puts a message at the end of the queue. Returns FALSE when the queue is full.
BOOL WINAPI PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Puts WM_QUIT, with the code as its wParam, after the posted messages.
void WINAPI PostQuitMessage(int exitCode);

// Handles the messages that the game does not: WM_CLOSE, which every request to close the window
// sends, destroys the window.
LRESULT WINAPI DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Begin and end painting for WM_PAINT. The window needs no painting afterwards.
HDC WINAPI BeginPaint(HWND window, PAINTSTRUCT* paint);
BOOL WINAPI EndPaint(HWND window, const PAINTSTRUCT* paint);

// Sends WM_TIMER with the timer's number as its wParam every `period` milliseconds, or calls the
// callback instead if there is one. Returns 0 on failure.
UINT_PTR WINAPI SetTimer(HWND window, UINT_PTR timer, UINT period, TIMERPROC callback);

// Returns the game's window when it has the keyboard focus, otherwise null.
HWND WINAPI GetFocus();

// Keyboard

inline constexpr int VK_RETURN = 13;
inline constexpr int VK_SHIFT = 16;
inline constexpr int VK_ESCAPE = 27;
inline constexpr int VK_SPACE = 32;
inline constexpr int VK_LEFT = 37;
inline constexpr int VK_UP = 38;
inline constexpr int VK_RIGHT = 39;
inline constexpr int VK_DOWN = 40;
inline constexpr int VK_F1 = 112;
inline constexpr int VK_F2 = 113;
inline constexpr int VK_F3 = 114;
inline constexpr int VK_F4 = 115;
inline constexpr int VK_F5 = 116;
inline constexpr int VK_F6 = 117;
inline constexpr int VK_F12 = 123;

// Returns the state of a key now: the most significant bit is set while it is held.
SHORT WINAPI GetAsyncKeyState(int key);

// Message boxes

inline constexpr UINT MB_OK = 0x00;
inline constexpr UINT MB_ICONHAND = 0x10;
inline constexpr UINT MB_ICONINFORMATION = 0x40;

// Shows a box with a text, a caption (null: "Error") and a button, and waits until the player
// closes it. The owner may be null. The game does not use the result (the button).
int WINAPI MessageBoxA(HWND owner, const char* text, const char* caption, UINT type);
