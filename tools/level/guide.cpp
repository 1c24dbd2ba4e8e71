#include "tools/level/guide.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <queue>
#include <utility>

#include "sim/course.h"
#include "sim/marble.h"

namespace {

constexpr auto speedUnits = static_cast<float>(unitsPerVelocity);
constexpr auto topSpeed = static_cast<float>(normalPower * topSpeedPerPower);
// Downward force on a marble on a vertical slope, see Level::downhillAt.
constexpr auto slopePull = static_cast<float>(gravity * marbleMass / 2.0);

constexpr float minSpeed = 0.35F;     // assumed where a marble from rest could not climb
constexpr float closedFactor = 40.0F; // by which the time through a closed place is multiplied

struct Neighbour {
    int columns;
    int rows;
};

// All directions: straight, diagonal (the first eight), and the knight's moves between them.
constexpr Neighbour neighbours[] = {{0, 1},   {1, 1},   {1, 0},  {1, -1}, {0, -1}, {-1, -1},
                                    {-1, 0},  {-1, 1},  {1, 2},  {2, 1},  {2, -1}, {1, -2},
                                    {-1, -2}, {-2, -1}, {-2, 1}, {-1, 2}};

bool onMesh(int column, int row) {
    return column >= 0 && column < groundColumns && row >= 0 && row < groundRows;
}

std::size_t indexOf(int column, int row) {
    return static_cast<std::size_t>(row * groundColumns + column);
}

bool isOpen(const Level& course, const Vector3& at, float clearance) {
    if (at.x < courseLeft + clearance || at.x > courseRight - clearance) { return false; }
    for (int i = 0; i < 8; ++i) {
        const auto& [c, r] = neighbours[i];
        const float reach = clearance / std::sqrt(static_cast<float>(c * c + r * r));
        const float x = at.x + static_cast<float>(c) * reach;
        const float y = at.y + static_cast<float>(r) * reach;
        if (course.holeAt(x, y) > 0.0F) { return false; }
    }
    return course.holeAt(at.x, at.y) <= 0.0F;
}

// The slope of the ground at a vertex: how much deeper it gets for each unit of x and y.
struct Slope {
    float x;
    float y;
};

Slope slopeAt(const Level& course, int column, int row) {
    const auto depth = [&course](int c, int r) {
        return course
            .groundPoints[indexOf(std::clamp(c, 0, groundColumns - 1),
                                  std::clamp(r, 0, groundRows - 1))]
            .z;
    };
    constexpr float span = 2.0F * groundSpacing;
    return {.x = (depth(column + 1, row) - depth(column - 1, row)) / span,
            .y = (depth(column, row + 1) - depth(column, row - 1)) / span};
}

// Returns the velocity along an axis at which key, slope and drag are in balance: below 0 where the
// marble cannot climb. `downAhead` is the slope in the direction of the key.
float balanceOf(float downAhead, const Slope& slope) {
    const float key = normalPower / Vector3(1.0F, downAhead, 0.0F).length();
    const float pull = slopePull * downAhead / Vector3(1.0F, slope.x, slope.y).length();
    return (key + pull) / -drag;
}

// A step from a vertex to a neighbour.
struct Step {
    float seconds;
    float climb; // its length along the course when it cannot be climbed without turbo
};

// The keys of both axes work at the same time, so the slower axis counts.
Step stepFrom(const Slope& slope, const Neighbour& to) {
    const float balanceX = balanceOf(to.columns < 0 ? -slope.x : slope.x, slope);
    const float balanceY = balanceOf(to.rows < 0 ? -slope.y : slope.y, slope);
    const auto x = static_cast<float>(std::abs(to.columns));
    const auto y = static_cast<float>(std::abs(to.rows));
    const float time =
        std::max({Vector3(x, y, 0.0F).length() / topSpeed, x / std::max(balanceX, minSpeed),
                  y / std::max(balanceY, minSpeed)});
    return {.seconds = time * groundSpacing / speedUnits,
            .climb = balanceY < 0.0F ? y * groundSpacing : 0.0F};
}

// Dijkstra's search, backwards from the goal line over the mesh.
struct Search {
    using Entry = std::pair<float, std::size_t>;

    const Level& course;
    Guide& guide;
    std::priority_queue<Entry, std::vector<Entry>, std::greater<>> next;

    void begin() {
        for (std::size_t i = 0; i < guide.seconds.size(); ++i) {
            if (course.groundPoints[i].y > goalLine) { offer(i, 0.0F, 0.0F); }
        }
    }

    void offer(std::size_t index, float seconds, float climb) {
        if (!(seconds < guide.seconds[index])) { return; } // also for NaN
        guide.seconds[index] = seconds;
        guide.climb[index] = climb;
        next.emplace(seconds, index);
    }

    void spread(std::size_t to) {
        const int column = static_cast<int>(to) % groundColumns;
        const int row = static_cast<int>(to) / groundColumns;
        for (const auto& [c, r] : neighbours) {
            if (!onMesh(column + c, row + r)) { continue; }
            const std::size_t from = indexOf(column + c, row + r);
            Step step = stepFrom(slopeAt(course, column + c, row + r), {-c, -r});
            if (!guide.open[from]) { step.seconds *= closedFactor; }
            offer(from, guide.seconds[to] + step.seconds, guide.climb[to] + step.climb);
        }
    }

    void run() {
        begin();
        while (!next.empty()) {
            const auto [seconds, index] = next.top();
            next.pop();
            if (seconds <= guide.seconds[index]) { spread(index); }
        }
    }
};

// Returns a field's value between the vertices around the point.
float valueAt(const std::vector<float>& field, float x, float y) {
    const float c = std::clamp((x - courseLeft) / groundSpacing, 0.0F, groundColumns - 1.001F);
    const float r = std::clamp((y - courseBack) / groundSpacing, 0.0F, groundRows - 1.001F);
    const int column = static_cast<int>(c);
    const int row = static_cast<int>(r);
    const float u = c - static_cast<float>(column);
    const float v = r - static_cast<float>(row);
    const float* corner = &field[indexOf(column, row)];
    const float near = corner[0] * (1.0F - u) + corner[1] * u;
    const float far = corner[groundColumns] * (1.0F - u) + corner[groundColumns + 1] * u;
    return near * (1.0F - v) + far * v;
}

} // namespace

Guide::Guide(const Level& course, float clearance) {
    seconds.assign(groundVertices, 1.0e9F);
    climb.assign(groundVertices, 0.0F);
    open.resize(groundVertices);
    for (std::size_t i = 0; i < open.size(); ++i) {
        open[i] = isOpen(course, course.groundPoints[i], clearance);
    }
    Search{course, *this, {}}.run();
}

float Guide::secondsAt(float x, float y) const {
    return valueAt(seconds, x, y);
}

float Guide::climbAt(float x, float y) const {
    return valueAt(climb, x, y);
}

Vector3 Guide::directionAt(float x, float y) const {
    constexpr float reach = 20.0F;
    return Vector3(secondsAt(x - reach, y) - secondsAt(x + reach, y),
                   secondsAt(x, y - reach) - secondsAt(x, y + reach), 0.0F)
        .unit();
}

bool Guide::reachesGoal() const {
    std::vector<bool> seen(open.size());
    std::vector<std::size_t> toVisit = {
        indexOf(groundCentreColumn, groundCentreRow + static_cast<int>(startLine) / groundSpacing)};
    while (!toVisit.empty()) {
        const std::size_t index = toVisit.back();
        toVisit.pop_back();
        if (seen[index] || !open[index]) { continue; }
        seen[index] = true;
        const int column = static_cast<int>(index) % groundColumns;
        const int row = static_cast<int>(index) / groundColumns;
        if (row == groundRows - 1) { return true; }
        for (int i = 0; i < 8; ++i) {
            const auto& [c, r] = neighbours[i];
            if (onMesh(column + c, row + r)) { toVisit.push_back(indexOf(column + c, row + r)); }
        }
    }
    return false;
}
