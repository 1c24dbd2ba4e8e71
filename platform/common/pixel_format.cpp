#include "platform/common/pixel_format.h"

#include <algorithm>
#include <cstring>

#include "platform/display_mode.h"

namespace {

constexpr PIXELFORMATDESCRIPTOR describeFormat() {
    constexpr DWORD drawToWindow = 0x04;
    PIXELFORMATDESCRIPTOR format = {};
    format.nSize = sizeof format;
    format.nVersion = 1;
    format.dwFlags = PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER | drawToWindow;
    format.iPixelType = PFD_TYPE_RGBA;
    format.cColorBits = screenColourBits;
    format.cRedBits = 5;
    format.cRedShift = 11;
    format.cGreenBits = 6;
    format.cGreenShift = 5;
    format.cBlueBits = 5;
    format.cBlueShift = 0;
    format.cDepthBits = screenDepthBits;
    format.iLayerType = PFD_MAIN_PLANE;
    return format;
}

} // namespace

void copyPixelFormat(UINT size, PIXELFORMATDESCRIPTOR* description) {
    static constexpr PIXELFORMATDESCRIPTOR format = describeFormat();
    if (description == nullptr) { return; }
    std::memcpy(description, &format, std::min<std::size_t>(size, sizeof format));
}
