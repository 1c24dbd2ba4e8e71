// The typeface of the message box, compiled in: a box appears where no font is installed.
#pragma once

inline constexpr int glyphWidth = 5;  // dots
inline constexpr int glyphHeight = 9; // dots, of which two stand below the line

// Whether the glyph of a character has a dot at x from the left and y from the top. A character
// that is not printable ASCII is an empty square.
bool glyphDot(char character, int x, int y);
