// The game's typeface: one skeleton for every character from "!" to "~", read from typeface.txt.
//
// A wide, round face, drawn with one thick pen. Dots are round like the marble. All digits are
// equally wide, so that a running clock does not jitter. The height of a letter is measured
// between the centres of its strokes: capitals are 21 high, small letters 14; descenders go to -6.
#pragma once

#include <string>

struct LetterShape {
    char character;
    int width;        // advance in glyph pixels: the ink and the space around it
    std::string path; // see stroke.h
};

inline constexpr char firstCharacter = '!';
inline constexpr char lastCharacter = '~';
inline constexpr double capitalHeight = 21.0;

// Returns the shape of a character from firstCharacter to lastCharacter.
const LetterShape& letterShape(char character);
