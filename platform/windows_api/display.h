// Display modes, the drawing surface and the binding of OpenGL.
#pragma once

#include "platform/windows_api/types.h"

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
