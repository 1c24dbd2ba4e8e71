#include "platform/sdl/display.h"

#include "platform/sdl/machine.h"
#include "platform/sdl/window.h"

namespace {

bool fullScreen = false;

bool isOffered(const DEVMODEA& mode) {
    return mode.dmBitsPerPel == displayDepth && mode.dmPelsWidth == displayWidth &&
           mode.dmPelsHeight == displayHeight;
}

} // namespace

bool fullScreenWanted() {
    return fullScreen;
}

BOOL WINAPI EnumDisplaySettingsA(const char*, DWORD index, DEVMODEA* mode) {
    if (index != 0 || !mode || !startVideo()) { return FALSE; }
    mode->dmSize = sizeof *mode;
    mode->dmFields = DM_BITSPERPEL | DM_PELSWIDTH | DM_PELSHEIGHT;
    mode->dmBitsPerPel = displayDepth;
    mode->dmPelsWidth = displayWidth;
    mode->dmPelsHeight = displayHeight;
    return TRUE;
}

LONG WINAPI ChangeDisplaySettingsA(DEVMODEA* mode, DWORD) {
    if (mode && !isOffered(*mode)) { return DISP_CHANGE_BADMODE; }
    if (mode && !startVideo()) { return DISP_CHANGE_FAILED; }
    fullScreen = mode != nullptr;
    if (fullScreen) {
        coverScreen();
    } else {
        uncoverScreen();
    }
    return DISP_CHANGE_SUCCESSFUL;
}
