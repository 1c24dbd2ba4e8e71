#include "platform/display_mode.h"
#include "platform/sdl/full_screen.h"
#include "platform/windows_api.h"

namespace {

bool isOffered(const DEVMODEA& mode) {
    return mode.dmBitsPerPel == screenColourBits && mode.dmPelsWidth == screenWidth &&
           mode.dmPelsHeight == screenHeight;
}

} // namespace

// The mode is the provider's own, so it is there without a display too. CreateWindowExA then says
// what is missing.
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
    if (mode != nullptr && !isOffered(*mode)) { return DISP_CHANGE_BADMODE; }
    setFullScreen(mode != nullptr);
    return DISP_CHANGE_SUCCESSFUL;
}
