// The font sheet: every glyph packed into one square picture, its mip levels, and the metrics.
//
// The game divides the pixels of a glyph by 255, not 256, to get texture coordinates, and samples
// the nearest texel. At full size, glyph pixel n < 128 therefore shows texel n and a later one
// texel n + 1; texels 127 and 128 both show pixel 127. Level 0 is drawn by exactly this rule, so
// that letters are crisp everywhere in the sheet. The smaller levels are drawn from the skeletons
// again, each slightly blurred: the game shows level 1 for its small text and skips texels.
#pragma once

#include <string>
#include <vector>

#include "art/pictures/image.h"

// A glyph's rectangle in pixels of the sheet; right and bottom are the first outside.
struct GlyphCell {
    char character;
    int left;
    int top;
    int right;
    int bottom;
};

// Returns the places of all characters, in order of their codes. Empty when they do not fit.
std::vector<GlyphCell> layOutGlyphs();

// Draws a mip level of the sheet, grey: how much of each texel is ink.
Image8 drawFontLevel(const std::vector<GlyphCell>& cells, int level);

// Returns the metrics as the game reads them: first and last code, then character, left, top,
// right and bottom of every glyph; no line break at the end.
std::string fontMetrics(const std::vector<GlyphCell>& cells);
