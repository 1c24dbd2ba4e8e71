#include "data/font.h"

#include <algorithm>

#include "data/file_error.h"

namespace {

constexpr char lineHeightGlyph = '!'; // its height is the line spacing
constexpr float gapWidth = 10.0F;     // advance of a character that is not drawn, before scaling

bool readGlyph(TokenReader& reader, Font& into, char character) {
    const auto code = static_cast<unsigned char>(character);
    return reader.readFloat(into.glyphLeft[code]) && reader.readFloat(into.glyphTop[code]) &&
           reader.readFloat(into.glyphRight[code]) && reader.readFloat(into.glyphBottom[code]);
}

} // namespace

Font::Font()
    : firstChar(-1), lastChar(-1), loaded(false), lineStartX(0.0F), penX(0.0F), penY(0.0F),
      scale(normalText), colour{1.0F, 1.0F, 1.0F, 1.0F} {}

bool Font::readMetrics(const char* fileName) {
    TokenReader reader;
    if (!openOrLog(reader, fileName)) { return false; }
    if (!reader.readInteger(firstChar) || firstChar < 0) { return false; }
    if (!reader.readInteger(lastChar)) { return false; }
    do {
        char character = 0;
        if (!reader.readCharacter(character)) { return false; }
        if (!readGlyph(reader, *this, character)) { return false; }
    } while (!reader.atEnd());
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

float Font::textWidth(const char* text) const {
    float width = 0.0F;
    for (; *text != '\0' && *text != '\n'; ++text) {
        width += advanceOf(*text);
    }
    return *text == '\n' ? std::max(width, textWidth(text + 1)) : width;
}

bool Font::isDrawable(char character) const {
    const int code = static_cast<signed char>(character);
    return code >= firstChar && code <= lastChar;
}

float Font::advanceOf(char character) const {
    if (!isDrawable(character)) { return gapWidth * scale; }
    const auto code = static_cast<unsigned char>(character);
    return (glyphRight[code] - glyphLeft[code]) * scale;
}

float Font::lineSpacing() const {
    const auto code = static_cast<unsigned char>(lineHeightGlyph);
    return (glyphBottom[code] - glyphTop[code]) * scale;
}
