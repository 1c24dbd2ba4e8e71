#include "art/pictures/strokes.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>

namespace {

// The share of a quarter ellipse's axis at which its cubic has its control points.
constexpr double ellipseHandle = 0.5522847;
constexpr int piecesOfCurve = 12;

struct Pen {
    Skeleton& ink;
    Point at{0.0, 0.0};
    double radius = strokeRadius;

    void lineTo(const Point& end) {
        ink.push_back({at, end, radius});
        at = end;
    }

    void curveTo(const Point& a, const Point& b, const Point& end) {
        const Point start = at;
        for (int i = 1; i <= piecesOfCurve; ++i) {
            const double t = static_cast<double>(i) / piecesOfCurve;
            const double s = 1.0 - t;
            const double w[4] = {s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t};
            lineTo({w[0] * start.x + w[1] * a.x + w[2] * b.x + w[3] * end.x,
                    w[0] * start.y + w[1] * a.y + w[2] * b.y + w[3] * end.y});
        }
    }

    // The corner is where the tangents of both ends meet.
    void quarterTo(const Point& corner, const Point& end) {
        const auto towardsCorner = [&corner](const Point& p) {
            return Point{p.x + (corner.x - p.x) * ellipseHandle,
                         p.y + (corner.y - p.y) * ellipseHandle};
        };
        curveTo(towardsCorner(at), towardsCorner(end), end);
    }

    void ball(const Point& centre) { ink.push_back({centre, centre, ballRadius}); }
};

bool carryOut(char command, std::istringstream& text, Pen& pen) {
    Point a{};
    Point b{};
    Point end{};
    if (command == 'W') return static_cast<bool>(text >> pen.radius);
    if (command == 'C' && !(text >> a.x >> a.y >> b.x >> b.y)) return false;
    if (!(text >> end.x >> end.y)) return false;
    switch (command) {
    case 'M': pen.at = end; return true;
    case 'L': pen.lineTo(end); return true;
    case 'h': pen.quarterTo({end.x, pen.at.y}, end); return true;
    case 'v': pen.quarterTo({pen.at.x, end.y}, end); return true;
    case 'C': pen.curveTo(a, b, end); return true;
    case 'D': pen.ball(end); return true;
    default: return false;
    }
}

double distanceTo(const StrokePiece& piece, const Point& point) {
    const double dx = piece.to.x - piece.from.x;
    const double dy = piece.to.y - piece.from.y;
    const double length = dx * dx + dy * dy;
    const double px = point.x - piece.from.x;
    const double py = point.y - piece.from.y;
    const double share = length > 0.0 ? std::clamp((px * dx + py * dy) / length, 0.0, 1.0) : 0.0;
    const double ox = px - share * dx;
    const double oy = py - share * dy;
    return std::sqrt(ox * ox + oy * oy) - piece.radius;
}

} // namespace

Skeleton skeletonOf(std::string_view text) {
    Skeleton ink;
    Pen pen{ink};
    std::istringstream in{std::string(text)};
    char command = 0;
    while (in >> command && carryOut(command, in, pen)) {
    }
    return ink;
}

double distanceToInk(const Skeleton& skeleton, const Point& point) {
    double nearest = 1e9;
    for (const StrokePiece& piece : skeleton)
        nearest = std::min(nearest, distanceTo(piece, point));
    return nearest;
}
