// The game's typeface: one skeleton for every character from "!" to "~", read from typeface.txt.
//
// A wide, round face, drawn with one thick pen. Dots are round like the marble. All digits are
// equally wide, so that a running clock does not jitter. The height of a letter is measured
// between the centres of its strokes: capitals are 21 high, small letters 14; descenders go to -6.
//
// The text of a skeleton is a sequence of commands, each a letter and numbers, separated by blanks.
// Each starts at the end of the previous one. Units are glyph pixels, x to the right from the left
// edge of the glyph, y UP from the baseline, which is the middle of a stroke that lies on it.
//
//   M x y              move to (x, y) without drawing
//   L x y              a straight line to (x, y)
//   h x y              a quarter ellipse to (x, y) that starts horizontally
//   v x y              a quarter ellipse to (x, y) that starts vertically
//   C x1 y1 x2 y2 x y  a cubic curve to (x, y) with two control points
//   D x y              a dot at (x, y)
//   W r                the strokes that follow have the half width r
#pragma once

#include <string>
#include <vector>

struct Point {
    double x;
    double y;
};

// A straight piece with round ends; a dot has length 0.
struct Stroke {
    Point from;
    Point to;
    double radius; // half the width
};

using Skeleton = std::vector<Stroke>;

// Reads a skeleton, with curves as short straight pieces, up to the first malformed command.
Skeleton readSkeleton(const std::string& text);

// Returns the distance from the point to the ink, negative inside it; a large number when the
// skeleton is empty.
double signedDistance(const Skeleton& skeleton, const Point& point);

struct LetterShape {
    char character;
    int width;        // advance in glyph pixels: the ink and the space around it
    std::string path; // the text of its skeleton
};

inline constexpr char firstCharacter = '!';
inline constexpr char lastCharacter = '~';
inline constexpr double capitalHeight = 21.0;

// Returns the shape of a character from firstCharacter to lastCharacter.
const LetterShape& letterShape(char character);
