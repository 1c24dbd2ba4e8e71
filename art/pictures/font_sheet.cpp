#include "art/pictures/font_sheet.h"

#include <algorithm>
#include <sstream>

#include "art/common/portable_math.h"
#include "art/pictures/typeface.h"
#include "data/font.h"

namespace {

constexpr int usableSize = fontSize - 1; // the game's texture coordinates end at 255
constexpr double baselineRow = 24.0;     // rows from the top of a glyph

std::vector<char> widestFirst() {
    std::vector<char> order;
    for (int c = firstCharacter; c <= lastCharacter; ++c) {
        order.push_back(static_cast<char>(c));
    }
    std::stable_sort(order.begin(), order.end(),
                     [](char a, char b) { return letterShape(a).width > letterShape(b).width; });
    return order;
}

// Returns the centre of the sheet pixel that a texel of level 0 shows.
double pixelOfTexel(int texel) {
    return (texel < fontSize / 2 ? texel : texel - 1) + 0.5;
}

double inkAt(const GlyphCell& cell, const Skeleton& skeleton, double column, double row) {
    const Point point{column - cell.left, baselineRow - (row - cell.top)};
    return clamp01(0.5 - signedDistance(skeleton, point));
}

// Returns the mean ink over a square around a point, in sheet pixels, slightly emboldened.
double meanInk(const GlyphCell& cell, const Skeleton& skeleton, double column, double row,
               double side) {
    constexpr int samples = 6;
    constexpr double boldness = 1.12;
    double sum = 0.0;
    for (int i = 0; i < samples * samples; ++i) {
        const int across = i % samples;
        const int down = i / samples;
        const double dx = ((across + 0.5) / samples - 0.5) * side;
        const double dy = ((down + 0.5) / samples - 0.5) * side;
        sum += inkAt(cell, skeleton, column + dx, row + dy);
    }
    return clamp01(sum / (samples * samples) * boldness);
}

double inkOfTexel(const GlyphCell& cell, const Skeleton& skeleton, int level, int x, int y) {
    constexpr double gather = 1.3; // side of the square that is averaged, in texels
    if (level == 0) { return inkAt(cell, skeleton, pixelOfTexel(x), pixelOfTexel(y)); }
    const double pixels = static_cast<double>(usableSize) / (fontSize >> level);
    return meanInk(cell, skeleton, (x + 0.5) * pixels, (y + 0.5) * pixels, pixels * gather);
}

void drawGlyph(Image8& sheet, const GlyphCell& cell, int level) {
    constexpr int margin = 2; // texels around the cell that the averages may reach
    const Skeleton skeleton = readSkeleton(letterShape(cell.character).path);
    const int left = std::max((cell.left >> level) - margin, 0);
    const int right = std::min((cell.right >> level) + margin, sheet.width - 1);
    const int top = std::max((cell.top >> level) - margin, 0);
    const int bottom = std::min((cell.bottom >> level) + margin, sheet.height - 1);
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const double ink = inkOfTexel(cell, skeleton, level, x, y) * 255.0 + 0.5;
            Rgb8& texel = sheet.at(x, y);
            texel.fill(std::max(texel[0], static_cast<std::uint8_t>(ink)));
        }
    }
}

} // namespace

// The widest glyphs come first, each in the first row with room; narrow ones fill the gaps.
std::vector<GlyphCell> layOutGlyphs() {
    constexpr int columnGap = 1;
    constexpr int rowGap = 3;
    constexpr int rowPitch = glyphHeight + rowGap;
    constexpr int rowCount = (usableSize + rowGap) / rowPitch;
    int rowEnd[rowCount] = {};
    std::vector<GlyphCell> cells;
    for (const char character : widestFirst()) {
        const int width = letterShape(character).width;
        int* row = std::find_if(rowEnd, rowEnd + rowCount,
                                [width](int end) { return end + width <= usableSize; });
        if (row == rowEnd + rowCount) { return {}; }
        const int top = static_cast<int>(row - rowEnd) * rowPitch;
        cells.push_back({character, *row, top, *row + width, top + glyphHeight});
        *row += width + columnGap;
    }
    std::sort(cells.begin(), cells.end(),
              [](const GlyphCell& a, const GlyphCell& b) { return a.character < b.character; });
    return cells;
}

Image8 drawFontLevel(const std::vector<GlyphCell>& cells, int level) {
    Image8 sheet(fontSize >> level, fontSize >> level);
    for (const GlyphCell& cell : cells) {
        drawGlyph(sheet, cell, level);
    }
    return sheet;
}

std::string fontMetrics(const std::vector<GlyphCell>& cells) {
    std::ostringstream text;
    text << int{firstCharacter} << ' ' << int{lastCharacter};
    for (const GlyphCell& cell : cells) {
        text << ' ' << cell.character << ' ' << cell.left << ' ' << cell.top << ' ' << cell.right
             << ' ' << cell.bottom;
    }
    return text.str();
}
