// The functions of Windows that the game calls, with their types and constants: the same names,
// signatures, record layouts and values as there, and what the game expects of each. The game draws
// with OpenGL (<GL/gl.h>) besides.
//
// The program for Windows defines GLORBIX_SYSTEM_WINDOWS and gets the system's own headers. All
// others, such as the tests on Windows too, get the declarations below: the system imports its
// functions from its libraries, and the linker cannot put fakes in their place.
// platform/windows_api_check.cpp compares both with the same list.
//
// The linker chooses the implementation: platform/sdl for play, tests/fakes for the tests. No
// function is thread-safe; the game calls them all from the thread that runs WinMain. Texts are
// bytes; platform/sdl takes them as UTF-8.
#pragma once

#ifdef GLORBIX_SYSTEM_WINDOWS

#ifndef NOMINMAX
#define NOMINMAX // windows.h would define min and max as macros
#endif

#include <windows.h>

#include <mmsystem.h>

#else

#include <cstdarg>
#include <cstdint>
#include <type_traits>

#define WINAPI
#define CALLBACK

using BOOL = int; // FALSE or TRUE; the game tests for zero and not zero
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using SHORT = std::int16_t;
using UINT = std::uint32_t;
using LONG = std::conditional_t<sizeof(long) == 4, long, std::int32_t>; // long on Windows
using DWORD = std::make_unsigned_t<LONG>;
using LONGLONG = long long;
using UINT_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using ATOM = WORD;
using MCIDEVICEID = UINT;
using MCIERROR = DWORD;

inline constexpr BOOL FALSE = 0;
inline constexpr BOOL TRUE = 1;

// Handles are opaque; null means "none". On Windows they have the system's types, because the
// program there links glorbix_world, which is compiled with these declarations.
using HANDLE = void*;
using HLOCAL = void*;
#ifdef _WIN32
using HWND = struct HWND__*;
using HDC = struct HDC__*;
using HGLRC = struct HGLRC__*;
using HINSTANCE = struct HINSTANCE__*;
using HICON = struct HICON__*;
using HBRUSH = struct HBRUSH__*;
using HMENU = struct HMENU__*;
#else
using HWND = struct WindowHandle*;
using HDC = struct DeviceContextHandle*;
using HGLRC = struct GlContextHandle*;
using HINSTANCE = struct InstanceHandle*;
using HICON = struct IconHandle*;
using HBRUSH = struct BrushHandle*;
using HMENU = struct MenuHandle*;
#endif
using HMODULE = HINSTANCE;
using HCURSOR = HICON;

using WNDPROC = LRESULT(CALLBACK*)(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
using TIMERPROC = void(CALLBACK*)(HWND window, UINT message, UINT_PTR timer, DWORD time);

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

struct POINT {
    LONG x;
    LONG y;
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

// Display settings

inline constexpr DWORD DM_BITSPERPEL = 0x00040000;
inline constexpr DWORD DM_PELSWIDTH = 0x00080000;
inline constexpr DWORD DM_PELSHEIGHT = 0x00100000;

inline constexpr LONG DISP_CHANGE_SUCCESSFUL = 0;
inline constexpr LONG DISP_CHANGE_RESTART = 1;
inline constexpr LONG DISP_CHANGE_FAILED = -1;
inline constexpr LONG DISP_CHANGE_BADMODE = -2;

// A display mode. Most fields are about printers; the game uses those with a comment.
struct DEVMODEA {
    BYTE dmDeviceName[32];
    WORD dmSpecVersion;
    WORD dmDriverVersion;
    WORD dmSize; // bytes of this record
    WORD dmDriverExtra;
    DWORD dmFields; // which fields are given, a set of DM_ bits
    POINT dmPosition;
    DWORD dmDisplayOrientation;
    DWORD dmDisplayFixedOutput;
    SHORT dmColor;
    SHORT dmDuplex;
    SHORT dmYResolution;
    SHORT dmTTOption;
    SHORT dmCollate;
    BYTE dmFormName[32];
    WORD dmLogPixels;
    DWORD dmBitsPerPel; // bits per pixel
    DWORD dmPelsWidth;  // pixels
    DWORD dmPelsHeight; // pixels
    DWORD dmDisplayFlags;
    DWORD dmDisplayFrequency;
    DWORD dmICMMethod;
    DWORD dmICMIntent;
    DWORD dmMediaType;
    DWORD dmDitherType;
    DWORD dmReserved1;
    DWORD dmReserved2;
    DWORD dmPanningWidth;
    DWORD dmPanningHeight;
};

// Copies the mode with that index (0, 1, 2, ...) of the display (null: the primary one) to `mode`.
// Returns FALSE, and leaves `mode` as it is, when there is none.
BOOL WINAPI EnumDisplaySettingsA(const char* device, DWORD index, DEVMODEA* mode);

// Switches the primary display to the mode; null restores the mode of the desktop. Returns one of
// the DISP_CHANGE_ values.
LONG WINAPI ChangeDisplaySettingsA(DEVMODEA* mode, DWORD flags);

// Pixel format, buffers and the binding of OpenGL

inline constexpr DWORD PFD_DOUBLEBUFFER = 0x01;
inline constexpr DWORD PFD_SUPPORT_OPENGL = 0x20;
inline constexpr DWORD PFD_NEED_PALETTE = 0x80;
inline constexpr BYTE PFD_TYPE_RGBA = 0;
inline constexpr BYTE PFD_MAIN_PLANE = 0;

struct PIXELFORMATDESCRIPTOR {
    WORD nSize;
    WORD nVersion;
    DWORD dwFlags;
    BYTE iPixelType;
    BYTE cColorBits;
    BYTE cRedBits;
    BYTE cRedShift;
    BYTE cGreenBits;
    BYTE cGreenShift;
    BYTE cBlueBits;
    BYTE cBlueShift;
    BYTE cAlphaBits;
    BYTE cAlphaShift;
    BYTE cAccumBits;
    BYTE cAccumRedBits;
    BYTE cAccumGreenBits;
    BYTE cAccumBlueBits;
    BYTE cAccumAlphaBits;
    BYTE cDepthBits;
    BYTE cStencilBits;
    BYTE cAuxBuffers;
    BYTE iLayerType;
    BYTE bReserved;
    DWORD dwLayerMask;
    DWORD dwVisibleMask;
    DWORD dwDamageMask;
};

// Returns and releases the window's drawing surface: 640 x 480 pixels of 16-bit colour with a
// 16-bit depth buffer. The viewport is all of it at first.
HDC WINAPI GetDC(HWND window);
int WINAPI ReleaseDC(HWND window, HDC deviceContext);

// Returns the number, from 1, of the format that is nearest to the one wanted; 0 on failure
// (GetLastError).
int WINAPI ChoosePixelFormat(HDC deviceContext, const PIXELFORMATDESCRIPTOR* wanted);

// Copies up to `size` bytes of the description of that format. Returns 0 on failure.
int WINAPI DescribePixelFormat(HDC deviceContext, int format, UINT size,
                               PIXELFORMATDESCRIPTOR* description);

// Sets the format of the surface. Returns FALSE on failure (GetLastError).
BOOL WINAPI SetPixelFormat(HDC deviceContext, int format, const PIXELFORMATDESCRIPTOR* wanted);

// Shows what was drawn. The contents of the surface are undefined afterwards.
BOOL WINAPI SwapBuffers(HDC deviceContext);

// Create an OpenGL context for the surface (null on failure); make it current, or none (null);
// delete it.
HGLRC WINAPI wglCreateContext(HDC deviceContext);
BOOL WINAPI wglMakeCurrent(HDC deviceContext, HGLRC context);
BOOL WINAPI wglDeleteContext(HGLRC context);

// Sound

inline constexpr DWORD SND_ASYNC = 0x00001;
inline constexpr DWORD SND_FILENAME = 0x20000;

// Plays a WAVE file and returns at once. A sound that is still playing is cut off. Returns FALSE
// when the file cannot be played; the game ignores that.
BOOL WINAPI PlaySoundA(const char* fileName, HMODULE module, DWORD flags);

// Plays one of the system's sounds; an unknown type plays the default one.
BOOL WINAPI MessageBeep(UINT type);

// The MIDI sequencer

inline constexpr UINT MCI_OPEN = 0x0803;
inline constexpr UINT MCI_CLOSE = 0x0804;
inline constexpr UINT MCI_PLAY = 0x0806;
inline constexpr UINT MCI_STATUS = 0x0814;

inline constexpr DWORD_PTR MCI_NOTIFY = 0x0001;
inline constexpr DWORD_PTR MCI_STATUS_ITEM = 0x0100;
inline constexpr DWORD_PTR MCI_OPEN_ELEMENT = 0x0200;
inline constexpr DWORD_PTR MCI_OPEN_TYPE = 0x2000;
inline constexpr DWORD MCI_SEQ_STATUS_PORT = 0x4003;
inline constexpr WPARAM MCI_NOTIFY_SUCCESSFUL = 1; // the piece has played to its end
inline constexpr WPARAM MCI_NOTIFY_ABORTED = 4;    // it was closed before

// The system packs these records.
#pragma pack(push, 1)
struct MCI_OPEN_PARMSA {
    DWORD_PTR dwCallback;
    MCIDEVICEID wDeviceID;        // out: the device that was opened
    const char* lpstrDeviceType;  // "sequencer"
    const char* lpstrElementName; // the MIDI file
    const char* lpstrAlias;
};

struct MCI_STATUS_PARMS {
    DWORD_PTR dwCallback;
    DWORD_PTR dwReturn; // out
    DWORD dwItem;
    DWORD dwTrack;
};

struct MCI_PLAY_PARMS {
    DWORD_PTR dwCallback; // the window to notify
    DWORD dwFrom;
    DWORD dwTo;
};
#pragma pack(pop)

// Sends a command to a media device; `parameters` is the address of the command's record. Returns 0
// or an error code. After MCI_PLAY with MCI_NOTIFY, MM_MCINOTIFY is posted to the window once, with
// the device as its lParam: with MCI_NOTIFY_SUCCESSFUL when the piece has played to its end, or
// with MCI_NOTIFY_ABORTED before MCI_CLOSE returns when it is closed earlier. The game does not look
// at the code: it clears Game.musicPlaying with the close, and handles this message before any that
// it posts later.
MCIERROR WINAPI mciSendCommandA(MCIDEVICEID device, UINT command, DWORD_PTR flags,
                                DWORD_PTR parameters);

// Clock

union LARGE_INTEGER {
    LONGLONG QuadPart;
};

// Give the counts per second, and the present count. The count never falls, but two calls may give
// the same one, and a tick then has no length.
BOOL WINAPI QueryPerformanceFrequency(LARGE_INTEGER* frequency);
BOOL WINAPI QueryPerformanceCounter(LARGE_INTEGER* counter);

// Files

inline constexpr DWORD GENERIC_READ = 0x80000000;
inline constexpr DWORD OPEN_EXISTING = 3;
inline constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(~static_cast<UINT_PTR>(0));

struct SECURITY_ATTRIBUTES;
struct OVERLAPPED;

// Opens a file for reading. Returns INVALID_HANDLE_VALUE on failure.
HANDLE WINAPI CreateFileA(const char* fileName, DWORD access, DWORD share,
                          SECURITY_ATTRIBUTES* security, DWORD creation, DWORD attributes,
                          HANDLE templateFile);

// Reads up to `wanted` bytes. At the end of the file it returns TRUE with fewer bytes, or none.
BOOL WINAPI ReadFile(HANDLE file, void* buffer, DWORD wanted, DWORD* got, OVERLAPPED* overlapped);
BOOL WINAPI CloseHandle(HANDLE file);

// Errors

inline constexpr DWORD FORMAT_MESSAGE_ALLOCATE_BUFFER = 0x0100;
inline constexpr DWORD FORMAT_MESSAGE_FROM_SYSTEM = 0x1000;
inline constexpr WORD LANG_NEUTRAL = 0;
inline constexpr WORD SUBLANG_DEFAULT = 1;

constexpr DWORD MAKELANGID(WORD language, WORD subLanguage) {
    return static_cast<DWORD>(subLanguage) << 10 | language;
}

// Returns the code of the last failure on this thread.
DWORD WINAPI GetLastError();

// With the two flags above: stores the address of a new text for the error, at `*(char**)buffer`,
// and returns its length, 0 on failure. LocalFree releases the text and returns null.
DWORD WINAPI FormatMessageA(DWORD flags, const void* source, DWORD error, DWORD language,
                            char* buffer, DWORD size, va_list* arguments);
HLOCAL WINAPI LocalFree(HLOCAL memory);

#endif
