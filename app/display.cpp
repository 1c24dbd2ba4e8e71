#include "app/display.h"

#include "app/resources.h"
#include "data/file_error.h"
#include "data/font.h"
#include "data/level_list.h"
#include "platform/windows_api.h"
#include "render/frame_state.h"
#include "state/game.h"

DEVMODEA displayMode = {};

namespace {

constexpr const char* initError = "Initialization Error";

bool isGameMode(const DEVMODEA& mode) {
    return mode.dmBitsPerPel == screenColourBits && mode.dmPelsWidth == screenWidth &&
           mode.dmPelsHeight == screenHeight;
}

// Searches the display's modes for the game's own and leaves it in displayMode.
bool findGameMode() {
    displayMode.dmSize = sizeof displayMode;
    for (DWORD index = 0;; ++index) {
        const bool exists = EnumDisplaySettingsA(nullptr, index, &displayMode) != FALSE;
        if (isGameMode(displayMode)) { return true; }
        if (!exists) { return false; }
    }
}

// Requests only size and colour depth and leaves the rest of the mode to the display.
LONG switchBySize() {
    displayMode.dmBitsPerPel = screenColourBits;
    displayMode.dmPelsWidth = screenWidth;
    displayMode.dmPelsHeight = screenHeight;
    displayMode.dmFields = DM_BITSPERPEL | DM_PELSWIDTH | DM_PELSHEIGHT;
    return ChangeDisplaySettingsA(&displayMode, 0);
}

bool refuseDisplay(const char* text, const char* caption) {
    MessageBoxA(GetFocus(), text, caption, MB_OK | MB_ICONHAND);
    return false;
}

// Reports why the display did not switch, for the results that have a message. Returns false.
bool reportSwitch(LONG result) {
    switch (result) {
    case DISP_CHANGE_RESTART:
        return refuseDisplay(
            "You must change your desktop to 16bit color (Hicolor) and then restart",
            "Win95/non-16bit color Init Error");
    case DISP_CHANGE_BADMODE:
        return refuseDisplay("The video mode 640x480x65536 is not supported", initError);
    case DISP_CHANGE_FAILED:
        return refuseDisplay("Hardware failed to change to 640x480x65536", initError);
    default: return false;
    }
}

PIXELFORMATDESCRIPTOR wantedFormat() {
    PIXELFORMATDESCRIPTOR format = {};
    format.nSize = sizeof format;
    format.nVersion = 1;
    format.dwFlags = PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    format.iPixelType = PFD_TYPE_RGBA;
    format.cColorBits = screenColourBits;
    format.cDepthBits = screenDepthBits;
    format.iLayerType = PFD_MAIN_PLANE;
    return format;
}

bool needsPalette(HDC deviceContext, int format) {
    PIXELFORMATDESCRIPTOR description = {};
    DescribePixelFormat(deviceContext, format, sizeof description, &description);
    return (description.dwFlags & PFD_NEED_PALETTE) != 0;
}

// Reports the last error with the system's text. Returns false.
bool refuseWithLastError(const char* caption) {
    char* text = nullptr;
    FormatMessageA(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM, nullptr,
                   GetLastError(), MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT),
                   reinterpret_cast<char*>(&text), 0, nullptr);
    MessageBoxA(nullptr, text != nullptr ? text : "", caption, MB_OK | MB_ICONINFORMATION);
    LocalFree(text);
    return false;
}

bool refuseWithError(HWND owner, const char* text) {
    MessageBoxA(owner, text, errorCaption, MB_OK);
    return false;
}

} // namespace

bool switchDisplayMode() {
    if (!findGameMode()) {
        return refuseDisplay("640x480x65536 (16-bit color/Hicolor) is not supported", initError);
    }
    if (ChangeDisplaySettingsA(&displayMode, 0) == DISP_CHANGE_SUCCESSFUL) { return true; }
    const LONG result = switchBySize();
    return result == DISP_CHANGE_SUCCESSFUL || reportSwitch(result);
}

bool setupPixelFormat(HDC deviceContext) {
    const PIXELFORMATDESCRIPTOR wanted = wantedFormat();
    const int format = ChoosePixelFormat(deviceContext, &wanted);
    if (format == 0) { return refuseWithLastError("ChoosePixelFormat failed GetLastError"); }
    if (needsPalette(deviceContext, format)) { return refuseWithError(nullptr, "Needs palette"); }
    if (!SetPixelFormat(deviceContext, format, &wanted)) {
        return refuseWithLastError("SetPixelFormat failed GetLastError");
    }
    return true;
}

bool initGraphicsAndData(HWND window) {
    Game.deviceContext = GetDC(window);
    if (!setupPixelFormat(Game.deviceContext)) { PostQuitMessage(0); }
    Game.glContext = wglCreateContext(Game.deviceContext);
    wglMakeCurrent(Game.deviceContext, Game.glContext);
    if (!loadLevelList()) {
        logFileError(levelListFile, "this is not a list of levels");
        return refuseWithError(window, "could not initialize map data");
    }
    if (!loadBestTimes()) {
        return refuseWithError(window, "could not initialize high score data");
    }
    if (!font.load(fontBaseName, fontMetricsFile)) {
        return refuseWithError(nullptr, "could not initialize fonts");
    }
    setStartState();
    return true;
}
