// The bitmap font that draws all text of the game.
//
// Glyphs are rectangles of one picture, a mip chain of 256 x 256 pixels and down; the metrics file
// has the rectangle of each character. Positions are pixels of the 640 x 480 screen, origin top
// left, y growing downwards. Set scale, position and colour, then draw: the pen moves on.
#pragma once

#include <cstdint>

inline constexpr const char* fontBaseName = "graphics/font/font";
inline constexpr const char* fontMetricsFile = "graphics/font/font.dat";

inline constexpr int fontLevels = 9; // mip levels 256 x 256 down to 1 x 1
inline constexpr int fontSize = 256; // pixels a side of level 0

// The text sizes of the game. The line spacing is the height of "!", 33 pixels, times the scale.
inline constexpr float normalText = 1.0F;
inline constexpr float smallText = 0.3939394F; // 13/33: lines 13 pixels apart
inline constexpr int smallLine = 13;           // pixels

struct Font {
    // Pixels of the glyphs in the picture, by character code, rows counted from its top.
    // Characters without metrics have no size.
    float glyphLeft[256] = {};
    float glyphRight[256] = {};
    float glyphTop[256] = {};
    float glyphBottom[256] = {};

    std::uint8_t imageLevels[fontLevels][fontSize * fontSize * 3] = {}; // grey, red byte counts
    std::int32_t firstChar; // the drawable range of character codes; -1 until loaded
    std::int32_t lastChar;
    bool loaded;      // text is drawn only once this is set
    float lineStartX; // where a line break takes the pen
    float penX;       // left edge of the next character
    float penY;       // top edge of the line
    float scale;      // screen pixels per glyph pixel
    float colour[4];  // red, green, blue, alpha, each 0..1

    Font();

    // Reads the chain, makes the texture and reads the metrics (app/resources.cpp). Returns false
    // when that fails, for a missing picture after a message box with its name.
    bool load(const char* baseName, const char* metricsName);

    // Reads the metrics: first and last drawable code, then records of a character and the left,
    // top, right and bottom of its glyph. Returns false when they are malformed; the file must end
    // directly after the last number.
    bool readMetrics(const char* fileName);

    void setScale(float newScale);
    void setPosition(float x, float y);
    void setColour(float red, float green, float blue, float alpha);

    // How far drawText would advance the pen, the sum of the advances; a glyph whose right edge
    // lies left of its left edge takes away from it. Of several lines the width of the widest.
    float textWidth(const char* text) const;

    // Whether the character has a glyph; how far it advances the pen; how far a line break lowers
    // it. In screen pixels at the present scale.
    bool isDrawable(char character) const;
    float advanceOf(char character) const;
    float lineSpacing() const;

    // The drawing (render/text.cpp).

    // Draws a text at the pen and advances it. A line break goes one line down, to the x of the
    // last setPosition; a character outside the drawable range, such as the blank, leaves a gap of
    // 10 pixels times the scale. Draws nothing before the font is loaded.
    void drawText(const char* text);

    // Draws a number: with 0 decimals truncated towards zero, otherwise rounded to that many digits.
    void drawNumber(float value, int decimals);

    // Draws one glyph with its top left corner at (x, y).
    void drawGlyph(char character, float x, float y) const;
};

extern Font font;
