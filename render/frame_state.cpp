#include "render/frame_state.h"

#include <cstdint>

#include <GL/gl.h>

#include "sim/level.h"

namespace {

void setClearColour(std::uint32_t code) {
    constexpr float perByte = 0.003921569F; // 1 / 255
    glClearColor(static_cast<float>(code >> 16 & 255U) * perByte,
                 static_cast<float>(code >> 8 & 255U) * perByte,
                 static_cast<float>(code & 255U) * perByte, 0.0F);
}

} // namespace

void setStartState() {
    glClearDepth(0.0); // the ground is drawn with inverse depths: nearer is greater
    glHint(GL_FOG_HINT, GL_FASTEST);
}

void switchFog(bool on) {
    if (on) {
        glEnable(GL_FOG);
    } else {
        glDisable(GL_FOG);
    }
}

void clearFrame(bool fogOn) {
    setClearColour(fogOn ? level.getFogColourCode() : 0);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}
