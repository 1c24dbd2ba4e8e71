// The one display mode. The page gives the game its size and its colours; how large it is seen is a
// matter of the page.

#include "platform/display_mode.h"
#include "platform/windows_api.h"

BOOL WINAPI EnumDisplaySettingsA(const char*, DWORD index, DEVMODEA* mode) {
    if (index != 0 || mode == nullptr) { return FALSE; }
    mode->dmSize = sizeof *mode;
    mode->dmFields = DM_BITSPERPEL | DM_PELSWIDTH | DM_PELSHEIGHT;
    mode->dmBitsPerPel = screenColourBits;
    mode->dmPelsWidth = screenWidth;
    mode->dmPelsHeight = screenHeight;
    return TRUE;
}

LONG WINAPI ChangeDisplaySettingsA(DEVMODEA* mode, DWORD) {
    const bool offered =
        mode == nullptr || (mode->dmBitsPerPel == screenColourBits &&
                            mode->dmPelsWidth == screenWidth && mode->dmPelsHeight == screenHeight);
    return offered ? DISP_CHANGE_SUCCESSFUL : DISP_CHANGE_BADMODE;
}
