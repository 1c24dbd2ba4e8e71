#include "platform/display_mode.h"
#include "platform/sdl/full_screen.h"
#include "platform/sdl/video.h"
#include "platform/windows_api.h"

namespace {

bool isOffered(const DEVMODEA& mode) {
    return mode.dmBitsPerPel == screenColourBits && mode.dmPelsWidth == screenWidth &&
           mode.dmPelsHeight == screenHeight;
}

} // namespace

BOOL WINAPI EnumDisplaySettingsA(const char*, DWORD index, DEVMODEA* mode) {
    if (index != 0 || mode == nullptr || !startVideo()) { return FALSE; }
    mode->dmSize = sizeof *mode;
    mode->dmFields = DM_BITSPERPEL | DM_PELSWIDTH | DM_PELSHEIGHT;
    mode->dmBitsPerPel = screenColourBits;
    mode->dmPelsWidth = screenWidth;
    mode->dmPelsHeight = screenHeight;
    return TRUE;
}

LONG WINAPI ChangeDisplaySettingsA(DEVMODEA* mode, DWORD) {
    if (mode != nullptr && !isOffered(*mode)) { return DISP_CHANGE_BADMODE; }
    if (mode != nullptr && !startVideo()) { return DISP_CHANGE_FAILED; }
    setFullScreen(mode != nullptr);
    return DISP_CHANGE_SUCCESSFUL;
}
