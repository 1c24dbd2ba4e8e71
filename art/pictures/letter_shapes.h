// The game's typeface: one skeleton for every character from "!" to "~".
//
// A wide, round face drawn with one thick pen. Dots and points are balls, like the marble. The
// digits share one width, so that a running clock does not jitter. Capitals stand 21 high between
// stroke centres, small letters 14, descenders reach to -6.
#pragma once

#include <string_view>

struct LetterShape {
    char character;
    int width;             // advance in glyph pixels, the ink and the room beside it
    std::string_view path; // see strokes.h
};

inline constexpr char firstCharacter = '!';
inline constexpr char lastCharacter = '~';
inline constexpr int characterCount = lastCharacter - firstCharacter + 1;

// The shape of a character from firstCharacter to lastCharacter.
const LetterShape& letterShape(char character);
