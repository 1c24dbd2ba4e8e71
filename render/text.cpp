#include <algorithm>
#include <cmath>
#include <cstdio>

#include <GL/gl.h>

#include "data/font.h"
#include "render/textures.h"
#include "state/screen.h"

namespace {

// Glyph pixels for each unit of texture coordinates: the last pixel column is at 1.0.
constexpr double pixelsPerTexture = fontSize - 1;

// Truncates towards zero. Values out of range become the nearest 32-bit integer, and NaN 0.
std::int32_t truncate(double value) {
    if (std::isnan(value)) { return 0; }
    return static_cast<std::int32_t>(std::clamp(value, -2147483648.0, 2147483647.0));
}

void putCorner(float textureX, float textureY, float x, float y) {
    glTexCoord2f(static_cast<GLfloat>(textureX / pixelsPerTexture),
                 static_cast<GLfloat>(1.0 - textureY / pixelsPerTexture));
    glVertex2f(static_cast<GLfloat>(x * ndcPerPixelX - 1.0),
               static_cast<GLfloat>(1.0 - y * ndcPerPixelY));
}

void setTextState() {
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, fontTexture);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_FOG);
    glDisable(GL_CULL_FACE);
    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    glTexEnvf(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
}

} // namespace

void Font::drawText(const char* text) {
    if (!loaded) { return; }
    for (; *text != '\0'; ++text) {
        if (*text == '\n') {
            penX = lineStartX;
            penY += lineSpacing();
            continue;
        }
        if (isDrawable(*text)) { drawGlyph(*text, penX, penY); }
        penX += advanceOf(*text);
    }
}

void Font::drawNumber(float value, int decimals) {
    char text[40];
    if (decimals <= 0) {
        std::snprintf(text, sizeof text, "%d", truncate(value));
    } else {
        const double p = std::pow(10.0, decimals);
        const double magnitude = std::fabs(static_cast<double>(value));
        const std::int32_t rounded = truncate(magnitude * p + 0.5);
        const float shown = static_cast<float>(rounded / p);
        const std::int32_t whole = truncate(shown);
        const std::int32_t fraction = truncate((static_cast<double>(shown) - whole) * p + 0.5);
        std::snprintf(text, sizeof text, "%s%d.%0*d", value < 0.0F ? "-" : "", whole, decimals,
                      fraction);
    }
    drawText(text);
}

void Font::drawGlyph(char character, float x, float y) const {
    const auto code = static_cast<unsigned char>(character);
    const float left = glyphLeft[code];
    const float right = glyphRight[code];
    const float top = glyphTop[code];
    const float bottom = glyphBottom[code];
    const float width = (right - left) * scale;
    const float height = (bottom - top) * scale;

    setTextState();
    glBegin(GL_QUADS);
    glColor4f(colour[0], colour[1], colour[2], colour[3]);
    putCorner(left, top, x, y);
    putCorner(right, top, x + width, y);
    putCorner(right, bottom, x + width, y + height);
    putCorner(left, bottom, x, y + height);
    glEnd();
}
