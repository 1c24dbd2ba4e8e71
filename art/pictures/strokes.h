// Letter skeletons: lines and balls written as a short text, and the distance to them.
//
// A skeleton's text is a row of commands, each a letter and numbers, parted by blanks. The pen is
// where the last command ended. Units are glyph pixels, x to the right from the cell's left edge,
// y UP from the baseline, which is the middle of a stroke that lies on it.
//
//   M x y              lift the pen and put it down at (x, y)
//   L x y              a straight line to (x, y)
//   h x y              a quarter ellipse to (x, y) that starts out horizontally
//   v x y              a quarter ellipse to (x, y) that starts out vertically
//   C x1 y1 x2 y2 x y  a cubic curve to (x, y) with two control points
//   D x y              a ball at (x, y)
//   W r                what follows has strokes of half width r
#pragma once

#include <string_view>
#include <vector>

struct Point {
    double x;
    double y;
};

// One straight piece of a stroke, round at both ends; a ball is a piece of no length.
struct StrokePiece {
    Point from;
    Point to;
    double radius; // half the stroke's width
};

using Skeleton = std::vector<StrokePiece>;

inline constexpr double strokeRadius = 2.0; // half width unless the text says otherwise
inline constexpr double ballRadius = 2.7;

// Flattens the text's curves into short pieces. A text that breaks the rules above gives the
// pieces before the fault.
Skeleton skeletonOf(std::string_view text);

// How far the point lies from the ink; negative inside it. A large number for an empty skeleton.
double distanceToInk(const Skeleton& skeleton, const Point& point);
