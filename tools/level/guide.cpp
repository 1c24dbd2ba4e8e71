#include "tools/level/guide.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <queue>
#include <utility>

#include "sim/course.h"
#include "sim/marble.h"

namespace {

constexpr float margin = 30.0F; // world units kept from catch circles and sides
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

bool isOpen(const Level& course, const Vector3& at) {
    if (at.x < courseLeft + margin || at.x > courseRight - margin) { return false; }
    for (int i = 0; i < 8; ++i) {
        const auto& [c, r] = neighbours[i];
        const float reach = margin / std::sqrt(static_cast<float>(c * c + r * r));
        const float x = at.x + static_cast<float>(c) * reach;
        const float y = at.y + static_cast<float>(r) * reach;
        if (course.holeAt(x, y) > 0.0F) { return false; }
    }
    return course.holeAt(at.x, at.y) <= 0.0F;
}

// Returns the seconds from one place to another nearby, at the speed at which the keys, the slope
// and the drag are in balance.
float secondsBetween(const Vector3& from, const Vector3& to) {
    const float length = (to - from).length();
    const float sinDown = (to.z - from.z) / length; // above 0 downhill, z being a depth
    const float balance = (normalPower + slopePull * sinDown) / -drag;
    return length / (std::clamp(balance, minSpeed, topSpeed) * speedUnits);
}

// Dijkstra's search, backwards from the goal line over the mesh.
struct Search {
    using Entry = std::pair<float, std::size_t>;

    const Level& course;
    Guide& guide;
    std::priority_queue<Entry, std::vector<Entry>, std::greater<>> next;

    void begin() {
        for (std::size_t i = 0; i < guide.seconds.size(); ++i) {
            if (course.groundPoints[i].y > goalLine) { offer(i, 0.0F); }
        }
    }

    void offer(std::size_t index, float seconds) {
        if (!(seconds < guide.seconds[index])) { return; } // also for NaN
        guide.seconds[index] = seconds;
        next.emplace(seconds, index);
    }

    void spread(std::size_t to) {
        const int column = static_cast<int>(to) % groundColumns;
        const int row = static_cast<int>(to) / groundColumns;
        for (const auto& [c, r] : neighbours) {
            if (!onMesh(column + c, row + r)) { continue; }
            const std::size_t from = indexOf(column + c, row + r);
            float seconds = secondsBetween(course.groundPoints[from], course.groundPoints[to]);
            if (!guide.open[from]) { seconds *= closedFactor; }
            offer(from, guide.seconds[to] + seconds);
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

} // namespace

Guide::Guide(const Level& course) {
    seconds.assign(groundVertices, 1.0e9F);
    open.resize(groundVertices);
    for (std::size_t i = 0; i < open.size(); ++i) {
        open[i] = isOpen(course, course.groundPoints[i]);
    }
    Search{course, *this, {}}.run();
}

float Guide::secondsAt(float x, float y) const {
    const float c = std::clamp((x - courseLeft) / groundSpacing, 0.0F, groundColumns - 1.001F);
    const float r = std::clamp((y - courseBack) / groundSpacing, 0.0F, groundRows - 1.001F);
    const int column = static_cast<int>(c);
    const int row = static_cast<int>(r);
    const float u = c - static_cast<float>(column);
    const float v = r - static_cast<float>(row);
    const float* corner = &seconds[indexOf(column, row)];
    const float near = corner[0] * (1.0F - u) + corner[1] * u;
    const float far = corner[groundColumns] * (1.0F - u) + corner[groundColumns + 1] * u;
    return near * (1.0F - v) + far * v;
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
