#include "tools/level/course_map.h"

#include <algorithm>
#include <cmath>

#include "sim/course.h"

namespace {

constexpr double unitsPerPixel = 6.0;
constexpr int strips = 2;
constexpr int border = 12; // pixels
constexpr float stripLength = -courseBack;
constexpr int stripPixels = static_cast<int>(stripLength / unitsPerPixel);
constexpr int stripHeight = static_cast<int>((courseRight - courseLeft) / unitsPerPixel);
constexpr int pictureWidth = stripPixels + 2 * border;
constexpr int pictureHeight = strips * (stripHeight + border) + border;
constexpr float maxHeight = 1.0e6F;
constexpr double maxRadius = 2.0 * pictureWidth; // pixels; this covers the picture
constexpr double farAway = 4.0 * pictureWidth;   // pixels; nothing beyond reaches the picture
constexpr int tickUnits = 1000;

constexpr PaletteColour paper = {24, 26, 30};
constexpr PaletteColour low = {34, 70, 62};
constexpr PaletteColour middle = {176, 160, 104};
constexpr PaletteColour high = {246, 244, 240};
constexpr int heightBands = 16;
constexpr int lightSteps = 12; // the darkest is for contours only
constexpr double contourShare = 0.72;

PaletteColour blend(PaletteColour a, PaletteColour b, double share) {
    const auto mix = [share](int from, int to) {
        return static_cast<std::uint8_t>(std::lround(from + (to - from) * share));
    };
    return {mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue)};
}

PaletteColour bandColour(int band, int light) {
    const double share = static_cast<double>(band) / (heightBands - 1);
    const PaletteColour flat =
        share < 0.5 ? blend(low, middle, share * 2.0) : blend(middle, high, share * 2.0 - 1.0);
    return blend({0, 0, 0}, flat, 0.35 + 0.65 * light / (lightSteps - 1));
}

// Return where a point of the world is in the picture, in pixels.
double pictureX(float y) {
    const float strip = y < 0.0F ? -stripLength : 0.0F;
    return border + (y - strip) / unitsPerPixel;
}
double pictureY(float x, float y) {
    const int strip = y < 0.0F ? 0 : 1;
    return border + strip * (stripHeight + border) + (x - courseLeft) / unitsPerPixel;
}

struct Mapper {
    const Level& course;
    Picture picture{pictureWidth, pictureHeight};
    std::uint8_t firstBand = 0;
    std::uint8_t white = 0;
    std::uint8_t black = 0;
    std::uint8_t green = 0;
    std::uint8_t red = 0;
    std::uint8_t darkRed = 0;
    std::uint8_t lineColour = 0;
    std::uint8_t turboColour = 0;
    std::uint8_t contour = 0;

    explicit Mapper(const Level& from) : course(from) { makePalette(); }

    void makePalette() {
        picture.addColour(paper);
        firstBand = static_cast<std::uint8_t>(picture.palette.size());
        for (int band = 0; band < heightBands; ++band) {
            for (int light = 0; light < lightSteps; ++light) {
                picture.addColour(bandColour(band, light));
            }
        }
        white = picture.addColour({255, 255, 255});
        black = picture.addColour({0, 0, 0});
        green = picture.addColour({40, 220, 90});
        red = picture.addColour({228, 44, 40});
        darkRed = picture.addColour({120, 16, 20});
        lineColour = picture.addColour({40, 110, 255});
        turboColour = picture.addColour({255, 90, 255});
    }

    // Returns the height, limited, and 0 where the numbers of a hole give no finite height.
    float heightUpwards(float x, float y) const {
        const float height = -course.heightAt(x, y);
        return std::isfinite(height) ? std::clamp(height, -maxHeight, maxHeight) : 0.0F;
    }

    // Returns the heights of one strip, with one more row and column for the differences.
    std::vector<float> stripHeights(int strip) const {
        std::vector<float> heights;
        for (int row = 0; row <= stripHeight; ++row) {
            for (int column = 0; column <= stripPixels; ++column) {
                const float x = courseLeft + static_cast<float>(row * unitsPerPixel);
                const float y = courseBack + static_cast<float>(strip) * stripLength +
                                static_cast<float>(column * unitsPerPixel);
                heights.push_back(heightUpwards(x, y));
            }
        }
        return heights;
    }

    void drawRelief() {
        std::vector<float> heights[strips];
        float lowest = 1.0e9F;
        float highest = -1.0e9F;
        for (int strip = 0; strip < strips; ++strip) {
            heights[strip] = stripHeights(strip);
            for (const float h : heights[strip]) {
                lowest = std::min(lowest, h);
                highest = std::max(highest, h);
            }
        }
        const float bandHeight = std::max((highest - lowest) / heightBands, 1.0F);
        for (int strip = 0; strip < strips; ++strip) {
            drawStrip(strip, heights[strip], lowest, bandHeight);
        }
    }

    void drawStrip(int strip, const std::vector<float>& heights, float lowest, float bandHeight) {
        const auto bandOf = [&](float height) {
            return std::clamp(static_cast<int>((height - lowest) / bandHeight), 0, heightBands - 1);
        };
        for (int row = 0; row < stripHeight; ++row) {
            const int top = border + strip * (stripHeight + border) + row;
            for (int column = 0; column < stripPixels; ++column) {
                const float* here =
                    &heights[static_cast<std::size_t>(row * (stripPixels + 1) + column)];
                const float right = here[1];
                const float below = here[stripPixels + 1];
                const int band = bandOf(*here);
                // The light comes from the upper left: a slope that rises to the right or
                // downwards is bright.
                const double slope = (right - *here + below - *here) / unitsPerPixel;
                const double light = 0.62 + 0.45 * slope / std::sqrt(1.0 + slope * slope);
                int step = std::clamp(static_cast<int>(light * lightSteps), 0, lightSteps - 1);
                if (band != bandOf(right) || band != bandOf(below)) {
                    step = static_cast<int>(step * contourShare) - 1;
                }
                picture.put(
                    border + column, top,
                    static_cast<std::uint8_t>(firstBand + band * lightSteps + std::max(step, 0)));
            }
        }
    }

    void drawHole(const Hole& hole) {
        if (hole.depth <= 0.0F) { return; }
        const double radius =
            std::min<double>(catchRadiusInWidths * hole.width / unitsPerPixel, maxRadius);
        const double x = pictureX(hole.y);
        const double y = pictureY(hole.x, hole.y);
        if (std::abs(x) > farAway || std::abs(y) > farAway) { return; }
        for (double r = 0.0; r < radius; r += 0.5) {
            picture.circle(x, y, r, 1, darkRed);
        }
        picture.circle(x, y, radius, 1, red);
    }

    void drawBars() {
        for (float x = courseLeft; x < courseRight; x += 6.0F) {
            const int row = static_cast<int>(pictureY(x, startLine));
            picture.dot(static_cast<int>(pictureX(startLine)), row, 3, green);
            const int goal = static_cast<int>(pictureX(goalLine));
            const int goalRow = static_cast<int>(pictureY(x, goalLine));
            for (int i = 0; i < 8; ++i) {
                const bool dark = ((i / 4) + (goalRow / 4)) % 2 == 0;
                picture.put(goal + i, goalRow, dark ? black : white);
            }
        }
    }

    void drawTicks() {
        for (int y = static_cast<int>(courseBack); y < static_cast<int>(-courseBack);
             y += tickUnits) {
            const auto at = static_cast<float>(y);
            const double x = pictureX(at);
            const double top = pictureY(courseLeft, at);
            picture.line(x, top - 6, x, top - 2, 1, white);
        }
    }

    void drawSpot(const Vector3& spot) {
        const double x = pictureX(spot.y);
        const double y = pictureY(spot.x, spot.y);
        picture.circle(x, y, 4.0, 3, black);
        picture.circle(x, y, 4.0, 1, white);
    }

    void drawLine(const std::vector<LinePoint>& line) {
        for (std::size_t i = 1; i < line.size(); ++i) {
            const LinePoint& a = line[i - 1];
            const LinePoint& b = line[i];
            if (a.caught) {
                picture.circle(pictureX(a.y), pictureY(a.x, a.y), 6.0, 3, white);
                continue;
            }
            if ((a.y < 0.0F) != (b.y < 0.0F)) { continue; }
            picture.line(pictureX(a.y), pictureY(a.x, a.y), pictureX(b.y), pictureY(b.x, b.y), 3,
                         b.turbo ? turboColour : lineColour);
        }
    }
};

} // namespace

Picture drawCourseMap(const Level& course, const std::vector<Vector3>& returnSpots,
                      const std::vector<LinePoint>& line) {
    Mapper mapper(course);
    mapper.drawRelief();
    mapper.drawBars();
    mapper.drawTicks();
    for (const Hole& hole : course.allHoles()) {
        mapper.drawHole(hole);
    }
    mapper.drawLine(line);
    for (const Vector3& spot : returnSpots) {
        mapper.drawSpot(spot);
    }
    return std::move(mapper.picture);
}
