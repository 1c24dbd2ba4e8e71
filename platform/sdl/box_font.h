// The typeface of message boxes, compiled into the program.
#pragma once

inline constexpr int glyphWidth = 5;  // dots
inline constexpr int glyphHeight = 9; // dots, of which two are below the base line

// Returns true when the glyph of the character has a dot at x (0 to 4, from the left) and y (0 to
// 8, from the top). A character that is not printable ASCII has a square as its glyph.
bool glyphDot(char character, int x, int y);
