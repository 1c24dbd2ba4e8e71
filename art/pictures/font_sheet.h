// The font picture: every glyph packed into 256 x 256 pixels, its mip levels, and its metrics.
//
// The game turns a glyph rectangle's pixels into texture coordinates by dividing by 255, not 256,
// and samples the nearest texel. At full size a glyph pixel n < 128 therefore lands on texel n and
// a later one on texel n + 1, with texel 127 and 128 both standing for pixel 127. Level 0 is drawn
// through exactly this map, so that letters are crisp wherever they lie in the picture. The
// smaller levels are drawn from the skeletons again, each a little softer than its texels, since
// the game shows level 1 at 13/33 of the size and skips texels there.
#pragma once

#include <string>

#include "art/pictures/canvas.h"

inline constexpr int fontSize = 256;
inline constexpr int fontLevels = 9;
inline constexpr int glyphHeight = 33; // rows of every glyph; the line spacing of the game

// A glyph's rectangle in pixels of the sheet: columns left..right-1, rows top..top+glyphHeight-1.
struct GlyphCell {
    char character;
    int left;
    int top;
    int right;
};

// Where all characters lie, in order of their codes. Every two cells are a pixel apart.
// Empty when they do not fit.
std::vector<GlyphCell> layOutGlyphs();

// The sheet at level 0..fontLevels-1, grey: how much of each texel is ink.
Picture drawFontLevel(const std::vector<GlyphCell>& cells, int level);

// The metrics as the game reads them: first and last code, then a record of character, left, top,
// right, bottom for every glyph; no line break at the end.
std::string fontMetrics(const std::vector<GlyphCell>& cells);
