// What the game takes from Windows, compared at compile time: with the system's own headers in the
// program for Windows, with our declarations everywhere else. A fact in which they differ stops one
// of the builds.
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "platform/windows_api.h"

namespace {

template <class Type, std::size_t size, std::size_t alignment = size>
constexpr bool isOf = sizeof(Type) == size && alignof(Type) == alignment;

template <class Function, class Pointer>
constexpr bool is = std::is_same_v<Function, Pointer>;

} // namespace

// NOLINTBEGIN(misc-redundant-expression): clang-tidy takes is<A, B> and is<C, D> for the same.
// Types. Where long has 64 bits no type can be a long of Windows, so an int of 32 takes its place.

static_assert(isOf<BYTE, 1> && isOf<WORD, 2> && isOf<SHORT, 2> && isOf<ATOM, 2>);
static_assert(isOf<BOOL, 4> && isOf<UINT, 4> && isOf<MCIDEVICEID, 4>);
static_assert(sizeof(LONGLONG) == 8); // 32-bit systems other than Windows may align it to 4
static_assert(isOf<LONG, 4> && isOf<DWORD, 4> && is<MCIERROR, DWORD>);
static_assert(sizeof(long) != 4 || (is<LONG, long> && is<DWORD, unsigned long>));
static_assert(std::is_signed_v<SHORT> && std::is_signed_v<LONG> && std::is_signed_v<LONGLONG>);
static_assert(std::is_unsigned_v<BYTE> && std::is_unsigned_v<WORD> && std::is_unsigned_v<DWORD>);
static_assert(std::is_unsigned_v<WPARAM> && std::is_signed_v<LPARAM> && std::is_signed_v<LRESULT>);
static_assert(isOf<WPARAM, sizeof(void*)> && isOf<LPARAM, sizeof(void*)>);
static_assert(isOf<LRESULT, sizeof(void*)> && is<UINT_PTR, WPARAM> && is<DWORD_PTR, WPARAM>);
static_assert(is<HLOCAL, HANDLE> && is<HANDLE, void*> && is<HMODULE, HINSTANCE>);
static_assert(is<HCURSOR, HICON>);
static_assert(is<WNDPROC, LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM)>);
static_assert(is<TIMERPROC, void(CALLBACK*)(HWND, UINT, UINT_PTR, DWORD)>);
// NOLINTEND(misc-redundant-expression)

// Records, as the 64-bit system lays them out

#if INTPTR_MAX == INT64_MAX
static_assert(isOf<WNDCLASSA, 72, 8> && offsetof(WNDCLASSA, style) == 0 &&
              offsetof(WNDCLASSA, lpfnWndProc) == 8 && offsetof(WNDCLASSA, cbClsExtra) == 16 &&
              offsetof(WNDCLASSA, cbWndExtra) == 20 && offsetof(WNDCLASSA, hInstance) == 24 &&
              offsetof(WNDCLASSA, hIcon) == 32 && offsetof(WNDCLASSA, hCursor) == 40 &&
              offsetof(WNDCLASSA, hbrBackground) == 48 && offsetof(WNDCLASSA, lpszMenuName) == 56 &&
              offsetof(WNDCLASSA, lpszClassName) == 64);
static_assert(isOf<POINT, 8, 4> && offsetof(POINT, x) == 0 && offsetof(POINT, y) == 4);
static_assert(isOf<MSG, 48, 8> && offsetof(MSG, hwnd) == 0 && offsetof(MSG, message) == 8 &&
              offsetof(MSG, wParam) == 16 && offsetof(MSG, lParam) == 24 &&
              offsetof(MSG, time) == 32 && offsetof(MSG, pt) == 36);
static_assert(isOf<RECT, 16, 4> && offsetof(RECT, left) == 0 && offsetof(RECT, top) == 4 &&
              offsetof(RECT, right) == 8 && offsetof(RECT, bottom) == 12);
static_assert(isOf<PAINTSTRUCT, 72, 8> && offsetof(PAINTSTRUCT, hdc) == 0 &&
              offsetof(PAINTSTRUCT, fErase) == 8 && offsetof(PAINTSTRUCT, rcPaint) == 12 &&
              offsetof(PAINTSTRUCT, fRestore) == 28 && offsetof(PAINTSTRUCT, fIncUpdate) == 32 &&
              offsetof(PAINTSTRUCT, rgbReserved) == 36);
static_assert(isOf<DEVMODEA, 156, 4> && offsetof(DEVMODEA, dmDeviceName) == 0 &&
              offsetof(DEVMODEA, dmSpecVersion) == 32 &&
              offsetof(DEVMODEA, dmDriverVersion) == 34 && offsetof(DEVMODEA, dmSize) == 36 &&
              offsetof(DEVMODEA, dmDriverExtra) == 38 && offsetof(DEVMODEA, dmFields) == 40 &&
              offsetof(DEVMODEA, dmPosition) == 44 &&
              offsetof(DEVMODEA, dmDisplayOrientation) == 52 &&
              offsetof(DEVMODEA, dmDisplayFixedOutput) == 56 && offsetof(DEVMODEA, dmColor) == 60 &&
              offsetof(DEVMODEA, dmDuplex) == 62 && offsetof(DEVMODEA, dmYResolution) == 64 &&
              offsetof(DEVMODEA, dmTTOption) == 66 && offsetof(DEVMODEA, dmCollate) == 68 &&
              offsetof(DEVMODEA, dmFormName) == 70 && offsetof(DEVMODEA, dmLogPixels) == 102 &&
              offsetof(DEVMODEA, dmBitsPerPel) == 104 && offsetof(DEVMODEA, dmPelsWidth) == 108 &&
              offsetof(DEVMODEA, dmPelsHeight) == 112 &&
              offsetof(DEVMODEA, dmDisplayFlags) == 116 &&
              offsetof(DEVMODEA, dmDisplayFrequency) == 120 &&
              offsetof(DEVMODEA, dmICMMethod) == 124 && offsetof(DEVMODEA, dmICMIntent) == 128 &&
              offsetof(DEVMODEA, dmMediaType) == 132 && offsetof(DEVMODEA, dmDitherType) == 136 &&
              offsetof(DEVMODEA, dmReserved1) == 140 && offsetof(DEVMODEA, dmReserved2) == 144 &&
              offsetof(DEVMODEA, dmPanningWidth) == 148 &&
              offsetof(DEVMODEA, dmPanningHeight) == 152);
static_assert(isOf<PIXELFORMATDESCRIPTOR, 40, 4> && offsetof(PIXELFORMATDESCRIPTOR, nSize) == 0 &&
              offsetof(PIXELFORMATDESCRIPTOR, nVersion) == 2 &&
              offsetof(PIXELFORMATDESCRIPTOR, dwFlags) == 4 &&
              offsetof(PIXELFORMATDESCRIPTOR, iPixelType) == 8 &&
              offsetof(PIXELFORMATDESCRIPTOR, cColorBits) == 9 &&
              offsetof(PIXELFORMATDESCRIPTOR, cRedBits) == 10 &&
              offsetof(PIXELFORMATDESCRIPTOR, cRedShift) == 11 &&
              offsetof(PIXELFORMATDESCRIPTOR, cGreenBits) == 12 &&
              offsetof(PIXELFORMATDESCRIPTOR, cGreenShift) == 13 &&
              offsetof(PIXELFORMATDESCRIPTOR, cBlueBits) == 14 &&
              offsetof(PIXELFORMATDESCRIPTOR, cBlueShift) == 15 &&
              offsetof(PIXELFORMATDESCRIPTOR, cAlphaBits) == 16 &&
              offsetof(PIXELFORMATDESCRIPTOR, cAlphaShift) == 17 &&
              offsetof(PIXELFORMATDESCRIPTOR, cAccumBits) == 18 &&
              offsetof(PIXELFORMATDESCRIPTOR, cAccumRedBits) == 19 &&
              offsetof(PIXELFORMATDESCRIPTOR, cAccumGreenBits) == 20 &&
              offsetof(PIXELFORMATDESCRIPTOR, cAccumBlueBits) == 21 &&
              offsetof(PIXELFORMATDESCRIPTOR, cAccumAlphaBits) == 22 &&
              offsetof(PIXELFORMATDESCRIPTOR, cDepthBits) == 23 &&
              offsetof(PIXELFORMATDESCRIPTOR, cStencilBits) == 24 &&
              offsetof(PIXELFORMATDESCRIPTOR, cAuxBuffers) == 25 &&
              offsetof(PIXELFORMATDESCRIPTOR, iLayerType) == 26 &&
              offsetof(PIXELFORMATDESCRIPTOR, bReserved) == 27 &&
              offsetof(PIXELFORMATDESCRIPTOR, dwLayerMask) == 28 &&
              offsetof(PIXELFORMATDESCRIPTOR, dwVisibleMask) == 32 &&
              offsetof(PIXELFORMATDESCRIPTOR, dwDamageMask) == 36);
static_assert(isOf<MCI_OPEN_PARMSA, 36, 1> && offsetof(MCI_OPEN_PARMSA, dwCallback) == 0 &&
              offsetof(MCI_OPEN_PARMSA, wDeviceID) == 8 &&
              offsetof(MCI_OPEN_PARMSA, lpstrDeviceType) == 12 &&
              offsetof(MCI_OPEN_PARMSA, lpstrElementName) == 20 &&
              offsetof(MCI_OPEN_PARMSA, lpstrAlias) == 28);
static_assert(isOf<MCI_STATUS_PARMS, 24, 1> && offsetof(MCI_STATUS_PARMS, dwCallback) == 0 &&
              offsetof(MCI_STATUS_PARMS, dwReturn) == 8 &&
              offsetof(MCI_STATUS_PARMS, dwItem) == 16 &&
              offsetof(MCI_STATUS_PARMS, dwTrack) == 20);
static_assert(isOf<MCI_PLAY_PARMS, 16, 1> && offsetof(MCI_PLAY_PARMS, dwCallback) == 0 &&
              offsetof(MCI_PLAY_PARMS, dwFrom) == 8 && offsetof(MCI_PLAY_PARMS, dwTo) == 12);
static_assert(isOf<LARGE_INTEGER, 8, 8> && offsetof(LARGE_INTEGER, QuadPart) == 0);
#endif

// Values. IDC_ARROW and INVALID_HANDLE_VALUE are pointers made from numbers, which no constant
// expression can compare.

static_assert(SW_SHOW == 5 && WM_CREATE == 1 && WM_DESTROY == 2 && WM_SETFOCUS == 7 &&
              WM_KILLFOCUS == 8 && WM_PAINT == 15 && WM_CLOSE == 16 && WM_QUIT == 18 &&
              WM_KEYDOWN == 256 && WM_TIMER == 275 && MM_MCINOTIFY == 953 && WM_USER == 1024);
static_assert(WS_POPUP == 0x80000000 && WS_CLIPSIBLINGS == 0x04000000 &&
              CW_USEDEFAULT == -2147483647 - 1 && COLOR_WINDOW == 5 && PM_REMOVE == 1);
static_assert(VK_RETURN == 13 && VK_SHIFT == 16 && VK_ESCAPE == 27 && VK_SPACE == 32 &&
              VK_LEFT == 37 && VK_UP == 38 && VK_RIGHT == 39 && VK_DOWN == 40 && VK_F1 == 112 &&
              VK_F2 == 113 && VK_F3 == 114 && VK_F4 == 115 && VK_F5 == 116 && VK_F6 == 117 &&
              VK_F12 == 123);
static_assert(MB_OK == 0x00 && MB_ICONHAND == 0x10 && MB_ICONINFORMATION == 0x40);
static_assert(DM_BITSPERPEL == 0x00040000 && DM_PELSWIDTH == 0x00080000 &&
              DM_PELSHEIGHT == 0x00100000);
static_assert(DISP_CHANGE_SUCCESSFUL == 0 && DISP_CHANGE_RESTART == 1 && DISP_CHANGE_FAILED == -1 &&
              DISP_CHANGE_BADMODE == -2);
static_assert(PFD_DOUBLEBUFFER == 0x01 && PFD_SUPPORT_OPENGL == 0x20 && PFD_NEED_PALETTE == 0x80 &&
              PFD_TYPE_RGBA == 0 && PFD_MAIN_PLANE == 0);
static_assert(SND_ASYNC == 0x00001 && SND_FILENAME == 0x20000);
static_assert(MCI_OPEN == 0x0803 && MCI_CLOSE == 0x0804 && MCI_PLAY == 0x0806 &&
              MCI_STATUS == 0x0814);
static_assert(MCI_NOTIFY == 0x0001 && MCI_STATUS_ITEM == 0x0100 && MCI_OPEN_ELEMENT == 0x0200 &&
              MCI_OPEN_TYPE == 0x2000 && MCI_SEQ_STATUS_PORT == 0x4003 &&
              MCI_NOTIFY_SUCCESSFUL == 1 && MCI_NOTIFY_ABORTED == 4);
static_assert(GENERIC_READ == 0x80000000 && OPEN_EXISTING == 3 && FILE_ATTRIBUTE_NORMAL == 0x80);
static_assert(FORMAT_MESSAGE_ALLOCATE_BUFFER == 0x0100 && FORMAT_MESSAGE_FROM_SYSTEM == 0x1000 &&
              LANG_NEUTRAL == 0 && SUBLANG_DEFAULT == 1);
static_assert(FALSE == 0 && TRUE == 1 && MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT) == 0x400);

// Functions

static_assert(is<decltype(&WinMain), int(WINAPI*)(HINSTANCE, HINSTANCE, char*, int)>);
static_assert(is<decltype(&LoadIconA), HICON(WINAPI*)(HINSTANCE, const char*)>);
static_assert(is<decltype(&LoadCursorA), HCURSOR(WINAPI*)(HINSTANCE, const char*)>);
static_assert(is<decltype(&RegisterClassA), ATOM(WINAPI*)(const WNDCLASSA*)>);
static_assert(
    is<decltype(&CreateWindowExA), HWND(WINAPI*)(DWORD, const char*, const char*, DWORD, int, int,
                                                 int, int, HWND, HMENU, HINSTANCE, void*)>);
static_assert(is<decltype(&ShowWindow), BOOL(WINAPI*)(HWND, int)>);
static_assert(is<decltype(&UpdateWindow), BOOL(WINAPI*)(HWND)>);
static_assert(is<decltype(&ShowCursor), int(WINAPI*)(BOOL)>);
static_assert(is<decltype(&PeekMessageA), BOOL(WINAPI*)(MSG*, HWND, UINT, UINT, UINT)>);
static_assert(is<decltype(&TranslateMessage), BOOL(WINAPI*)(const MSG*)>);
static_assert(is<decltype(&DispatchMessageA), LRESULT(WINAPI*)(const MSG*)>);
static_assert(is<decltype(&PostMessageA), BOOL(WINAPI*)(HWND, UINT, WPARAM, LPARAM)>);
static_assert(is<decltype(&PostQuitMessage), void(WINAPI*)(int)>);
static_assert(is<decltype(&DefWindowProcA), LRESULT(WINAPI*)(HWND, UINT, WPARAM, LPARAM)>);
static_assert(is<decltype(&BeginPaint), HDC(WINAPI*)(HWND, PAINTSTRUCT*)>);
static_assert(is<decltype(&EndPaint), BOOL(WINAPI*)(HWND, const PAINTSTRUCT*)>);
static_assert(is<decltype(&SetTimer), UINT_PTR(WINAPI*)(HWND, UINT_PTR, UINT, TIMERPROC)>);
static_assert(is<decltype(&GetFocus), HWND(WINAPI*)()>);
static_assert(is<decltype(&GetAsyncKeyState), SHORT(WINAPI*)(int)>);
static_assert(is<decltype(&MessageBoxA), int(WINAPI*)(HWND, const char*, const char*, UINT)>);
static_assert(is<decltype(&EnumDisplaySettingsA), BOOL(WINAPI*)(const char*, DWORD, DEVMODEA*)>);
static_assert(is<decltype(&ChangeDisplaySettingsA), LONG(WINAPI*)(DEVMODEA*, DWORD)>);
static_assert(is<decltype(&GetDC), HDC(WINAPI*)(HWND)>);
static_assert(is<decltype(&ReleaseDC), int(WINAPI*)(HWND, HDC)>);
static_assert(is<decltype(&ChoosePixelFormat), int(WINAPI*)(HDC, const PIXELFORMATDESCRIPTOR*)>);
static_assert(
    is<decltype(&DescribePixelFormat), int(WINAPI*)(HDC, int, UINT, PIXELFORMATDESCRIPTOR*)>);
static_assert(is<decltype(&SetPixelFormat), BOOL(WINAPI*)(HDC, int, const PIXELFORMATDESCRIPTOR*)>);
static_assert(is<decltype(&SwapBuffers), BOOL(WINAPI*)(HDC)>);
static_assert(is<decltype(&wglCreateContext), HGLRC(WINAPI*)(HDC)>);
static_assert(is<decltype(&wglMakeCurrent), BOOL(WINAPI*)(HDC, HGLRC)>);
static_assert(is<decltype(&wglDeleteContext), BOOL(WINAPI*)(HGLRC)>);
static_assert(is<decltype(&PlaySoundA), BOOL(WINAPI*)(const char*, HMODULE, DWORD)>);
static_assert(is<decltype(&MessageBeep), BOOL(WINAPI*)(UINT)>);
static_assert(
    is<decltype(&mciSendCommandA), MCIERROR(WINAPI*)(MCIDEVICEID, UINT, DWORD_PTR, DWORD_PTR)>);
static_assert(is<decltype(&QueryPerformanceFrequency), BOOL(WINAPI*)(LARGE_INTEGER*)>);
static_assert(is<decltype(&QueryPerformanceCounter), BOOL(WINAPI*)(LARGE_INTEGER*)>);
static_assert(
    is<decltype(&CreateFileA),
       HANDLE(WINAPI*)(const char*, DWORD, DWORD, SECURITY_ATTRIBUTES*, DWORD, DWORD, HANDLE)>);
static_assert(is<decltype(&ReadFile), BOOL(WINAPI*)(HANDLE, void*, DWORD, DWORD*, OVERLAPPED*)>);
static_assert(is<decltype(&CloseHandle), BOOL(WINAPI*)(HANDLE)>);
static_assert(is<decltype(&GetLastError), DWORD(WINAPI*)()>);
// The type of va_list may have attributes, which a template argument would ignore.
static_assert(is<DWORD, decltype(FormatMessageA(0, nullptr, 0, 0, nullptr, 0,
                                                static_cast<va_list*>(nullptr)))>);
static_assert(is<decltype(&LocalFree), HLOCAL(WINAPI*)(HLOCAL)>);
