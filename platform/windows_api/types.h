// Numbers, handles, points and callbacks of the Windows functions.
#pragma once

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

struct POINT {
    LONG x;
    LONG y;
};

using WNDPROC = LRESULT(CALLBACK*)(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
using TIMERPROC = void(CALLBACK*)(HWND window, UINT message, UINT_PTR timer, DWORD time);
