#include "data/font.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include <GL/gl.h>

#include "data/mip_chain.h"
#include "data/tokens.h"
#include "sim/projection.h"

namespace {

constexpr MipChain fontChain = {
    .levels = fontLevels,
    .size = fontSize,
    .texture = fontTexture,
    .internalFormat = GL_INTENSITY,
    .wrap = GL_CLAMP,
    .magnification = GL_NEAREST,
    .minification = GL_NEAREST_MIPMAP_NEAREST,
};

constexpr char lineBreak = '\n';
constexpr char lineHeightGlyph = '!'; // its height is the line spacing
constexpr float gapWidth = 10.0F;     // advance of what is not drawn, before scaling

// The glyph coordinates are those of a picture whose last pixel column is 1.0.
constexpr double texturePerPixel = 255.0;

bool readGlyph(TokenReader& reader, Font& into, char character) {
    const auto code = static_cast<unsigned char>(character);
    return reader.readFloat(into.glyphLeft[code]) && reader.readFloat(into.glyphTop[code]) &&
           reader.readFloat(into.glyphRight[code]) && reader.readFloat(into.glyphBottom[code]);
}

bool readMetrics(Font& into, const char* fileName) {
    TokenReader reader;
    if (!reader.open(fileName)) return false;
    if (!reader.readInteger(into.firstChar) || into.firstChar < 0) return false;
    if (!reader.readInteger(into.lastChar)) return false;
    do {
        char character = 0;
        if (!reader.readCharacter(character)) return false;
        if (!readGlyph(reader, into, character)) return false;
    } while (!reader.atEnd());
    return true;
}

bool isDrawable(const Font& in, char character) {
    const int code = static_cast<signed char>(character);
    return code >= in.firstChar && code <= in.lastChar;
}

float advanceOf(const Font& in, char character) {
    if (!isDrawable(in, character)) return gapWidth * in.scale;
    const auto code = static_cast<unsigned char>(character);
    return (in.glyphRight[code] - in.glyphLeft[code]) * in.scale;
}

float lineSpacing(const Font& in) {
    const auto code = static_cast<unsigned char>(lineHeightGlyph);
    return (in.glyphBottom[code] - in.glyphTop[code]) * in.scale;
}

// Towards zero; what no 32-bit integer holds becomes the nearest one that it does, nonsense 0.
std::int32_t truncate(double value) {
    if (std::isnan(value)) return 0;
    return static_cast<std::int32_t>(std::clamp(value, -2147483648.0, 2147483647.0));
}

void putCorner(float textureX, float textureY, float x, float y) {
    glTexCoord2f(static_cast<GLfloat>(textureX / texturePerPixel),
                 static_cast<GLfloat>(1.0 - textureY / texturePerPixel));
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

Font::Font()
    : firstChar(-1), lastChar(-1), loaded(false), lineStartX(0.0F), penX(0.0F), penY(0.0F),
      scale(normalText), colour{1.0F, 1.0F, 1.0F, 1.0F} {}

bool Font::load(const char* baseName, const char* metricsName) {
    if (!readMipChain(fontChain, baseName, imageLevels[0])) return false;
    uploadMipChain(fontChain, imageLevels[0]);
    if (!readMetrics(*this, metricsName)) return false;
    loaded = true;
    return true;
}

void Font::setScale(float newScale) {
    scale = newScale;
}

void Font::setPosition(float x, float y) {
    penX = lineStartX = x;
    penY = y;
}

void Font::setColour(float red, float green, float blue, float alpha) {
    colour[0] = red;
    colour[1] = green;
    colour[2] = blue;
    colour[3] = alpha;
}

void Font::drawText(const char* text) {
    if (!loaded) return;
    for (; *text != '\0'; ++text) {
        if (*text == lineBreak) {
            penX = lineStartX;
            penY += lineSpacing(*this);
            continue;
        }
        if (isDrawable(*this, *text)) drawGlyph(*text, penX, penY);
        penX += advanceOf(*this, *text);
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

float Font::textWidth(const char* text) const {
    float width = 0.0F;
    for (; *text != '\0' && *text != lineBreak; ++text) {
        width += advanceOf(*this, *text);
    }
    return *text == lineBreak ? std::max(width, textWidth(text + 1)) : width;
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
