// The bitmap font that draws all text of the game.
//
// Glyphs are rectangles of one picture, a mip chain; the metrics file has the rectangle of each
// character. Positions are screen pixels, origin top left, y downwards. Set scale, position and
// colour, then draw: the pen advances.
#pragma once

#include <cstdint>

inline constexpr const char* fontBaseName = "graphics/font/font";
inline constexpr const char* fontMetricsFile = "graphics/font/font.dat";

inline constexpr int fontLevels = 9; // mip levels 256 x 256 down to 1 x 1
inline constexpr int fontSize = 256; // pixels a side of level 0

inline constexpr int glyphHeight = 33; // pixels, of "!", which gives the line spacing

// The text sizes of the game, as scales.
inline constexpr float normalText = 1.0F;
inline constexpr int smallLine = 13; // screen pixels from line to line of small text
inline constexpr float smallText = static_cast<float>(smallLine) / glyphHeight;

struct Font {
    // Pixels of the glyphs in the picture, by character code, rows counted from its top.
    // Characters without metrics have no size.
    float glyphLeft[256] = {};
    float glyphRight[256] = {};
    float glyphTop[256] = {};
    float glyphBottom[256] = {};

    std::uint8_t imageLevels[fontLevels][fontSize * fontSize * 3] = {}; // grey; red is used
    std::int32_t firstChar; // the drawable range of character codes; -1 until loaded
    std::int32_t lastChar;
    bool loaded;      // text is drawn only when this is set
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

    // Returns how far drawText would advance the pen, in screen pixels; of several lines, the width
    // of the widest. A glyph whose right edge is left of its left edge has a negative advance.
    float textWidth(const char* text) const;

    // Return whether a character has a glyph, how far it advances the pen, and how far a line break
    // lowers the pen. In screen pixels at the current scale.
    bool isDrawable(char character) const;
    float advanceOf(char character) const;
    float lineSpacing() const;

    // The drawing (render/text.cpp).

    // Draws a text at the pen and advances it. A line break goes one line down, to the x of the
    // last setPosition; a character outside the drawable range, such as the blank, leaves a gap.
    // Draws nothing before the font is loaded.
    void drawText(const char* text);

    // Draws a number: truncated towards zero with 0 decimals, otherwise rounded to that many.
    void drawNumber(float value, int decimals);

    // Draws one glyph with its top left corner at (x, y).
    void drawGlyph(char character, float x, float y) const;
};

extern Font font;
