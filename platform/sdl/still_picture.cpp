#include "platform/sdl/still_picture.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <GL/gl.h>

#include "platform/display_mode.h"

namespace {

constexpr std::size_t pixelCount = std::size_t{screenWidth} * screenHeight;
constexpr int framesBeforeStill = 30;

using Picture = std::vector<std::uint16_t>; // 5-6-5

bool comparing = false;
Picture lastPicture;
int equalFrames = 0;

// The names of OpenGL's implementations that draw with the processor.
bool drawsWithProcessor() {
    const auto* text = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
    const std::string renderer = text != nullptr ? text : "";
    for (const char* name : {"llvmpipe", "softpipe", "swrast", "Software Rasterizer"}) {
        if (renderer.find(name) != std::string::npos) { return true; }
    }
    return false;
}

Picture readPicture() {
    Picture picture(pixelCount);
    glReadPixels(0, 0, screenWidth, screenHeight, GL_RGB, GL_UNSIGNED_SHORT_5_6_5, picture.data());
    return picture;
}

} // namespace

void watchPictures() {
    comparing = drawsWithProcessor();
    forgetPicture();
}

bool isPictureStill() {
    if (!comparing) { return false; }
    Picture picture = readPicture();
    equalFrames = picture == lastPicture ? equalFrames + 1 : 0;
    lastPicture = std::move(picture);
    return equalFrames > framesBeforeStill;
}

void forgetPicture() {
    equalFrames = 0;
    lastPicture.clear();
}
