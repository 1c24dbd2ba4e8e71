#include "art/pictures/typeface.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

constexpr double normalRadius = 2.0;
constexpr double dotRadius = 2.7;

struct Pen {
    Skeleton ink = {};
    Point at{0.0, 0.0};
    double radius = normalRadius;

    void lineTo(const Point& end) {
        ink.push_back({at, end, radius});
        at = end;
    }

    void curveTo(const Point& a, const Point& b, const Point& end) {
        constexpr int pieces = 12;
        const Point start = at;
        for (int i = 1; i <= pieces; ++i) {
            const double t = static_cast<double>(i) / pieces;
            const double s = 1.0 - t;
            const double w[4] = {s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t};
            lineTo({w[0] * start.x + w[1] * a.x + w[2] * b.x + w[3] * end.x,
                    w[0] * start.y + w[1] * a.y + w[2] * b.y + w[3] * end.y});
        }
    }

    // The tangents of both ends meet in the corner.
    void quarterTo(const Point& corner, const Point& end) {
        constexpr double kappa = 0.5522847; // places the control points of a quarter ellipse
        const auto towardsCorner = [&corner](const Point& p) {
            return Point{p.x + (corner.x - p.x) * kappa, p.y + (corner.y - p.y) * kappa};
        };
        curveTo(towardsCorner(at), towardsCorner(end), end);
    }
};

bool execute(char command, std::istringstream& text, Pen& pen) {
    Point a{};
    Point b{};
    Point end{};
    if (command == 'W') { return static_cast<bool>(text >> pen.radius); }
    if (command == 'C') { text >> a.x >> a.y >> b.x >> b.y; }
    if (!(text >> end.x >> end.y)) { return false; }
    switch (command) {
    case 'M': pen.at = end; return true;
    case 'L': pen.lineTo(end); return true;
    case 'h': pen.quarterTo({end.x, pen.at.y}, end); return true;
    case 'v': pen.quarterTo({pen.at.x, end.y}, end); return true;
    case 'C': pen.curveTo(a, b, end); return true;
    case 'D': pen.ink.push_back({end, end, dotRadius}); return true;
    default: return false;
    }
}

double distanceTo(const Stroke& stroke, const Point& point) {
    const double dx = stroke.to.x - stroke.from.x;
    const double dy = stroke.to.y - stroke.from.y;
    const double length = dx * dx + dy * dy;
    const double px = point.x - stroke.from.x;
    const double py = point.y - stroke.from.y;
    const double share = length > 0.0 ? std::clamp((px * dx + py * dy) / length, 0.0, 1.0) : 0.0;
    const double ox = px - share * dx;
    const double oy = py - share * dy;
    return std::sqrt(ox * ox + oy * oy) - stroke.radius;
}

// Reads one line for each character: the character, its width, its path. A line that starts with a
// blank continues the previous one.
std::vector<LetterShape> readTypeface() {
    std::vector<LetterShape> shapes;
    std::ifstream in(GLORBIX_TYPEFACE);
    for (char next = firstCharacter; in.peek() == next; ++next) {
        LetterShape shape{};
        in >> shape.character >> shape.width;
        do {
            std::string line;
            std::getline(in, line);
            shape.path += line;
        } while (in.peek() == ' ');
        shapes.push_back(shape);
    }
    if (shapes.empty() || shapes.back().character != lastCharacter) {
        std::cerr << GLORBIX_TYPEFACE
            ": characters are missing or not in the order of their codes\n";
        std::exit(1);
    }
    return shapes;
}

} // namespace

Skeleton readSkeleton(const std::string& text) {
    Pen pen;
    std::istringstream in(text);
    char command = 0;
    while (in >> command && execute(command, in, pen)) {}
    return pen.ink;
}

double signedDistance(const Skeleton& skeleton, const Point& point) {
    double nearest = 1e9;
    for (const Stroke& stroke : skeleton) {
        nearest = std::min(nearest, distanceTo(stroke, point));
    }
    return nearest;
}

const LetterShape& letterShape(char character) {
    static const std::vector<LetterShape> shapes = readTypeface();
    return shapes[static_cast<std::size_t>(character - firstCharacter)];
}
