#include "art/pictures/font_sheet.h"

#include <algorithm>
#include <cmath>

#include "art/pictures/letter_shapes.h"
#include "art/pictures/portable_math.h"
#include "art/pictures/strokes.h"

namespace {

constexpr int usableSize = fontSize - 1; // the game's texture coordinates end at 255
constexpr int cellGap = 1;               // columns, beside the room that each shape has around it
constexpr int rowGap = 3;
constexpr int rowPitch = glyphHeight + rowGap;
constexpr int rowCount = (usableSize + rowGap) / rowPitch;

constexpr double baselineRow = 24.0; // of a cell, down from its top

// The smaller levels: ink is gathered over a square of this many texels, and made a little bolder.
constexpr double gatherInTexels = 1.3;
constexpr double boldness = 1.12;
constexpr int samplesAcross = 6;

// The widest first, into the first row with room: the narrow ones fill the gaps at the ends.
std::vector<char> widestFirst() {
    std::vector<char> order;
    for (int c = firstCharacter; c <= lastCharacter; ++c)
        order.push_back(static_cast<char>(c));
    std::stable_sort(order.begin(), order.end(),
                     [](char a, char b) { return letterShape(a).width > letterShape(b).width; });
    return order;
}

// The sheet pixel that a texel of level 0 shows.
int pixelOfTexel(int texel) {
    return texel < fontSize / 2 ? texel : texel - 1;
}

double inkAt(const GlyphCell& cell, const Skeleton& skeleton, double column, double row) {
    const Point point{column - cell.left, baselineRow - (row - cell.top)};
    return clamp01(0.5 - distanceToInk(skeleton, point));
}

// The mean ink over a square of the given side, in sheet pixels, around a point.
double meanInk(const GlyphCell& cell, const Skeleton& skeleton, double column, double row,
               double side) {
    double sum = 0.0;
    for (int j = 0; j < samplesAcross; ++j) {
        for (int i = 0; i < samplesAcross; ++i) {
            const double dx = ((i + 0.5) / samplesAcross - 0.5) * side;
            const double dy = ((j + 0.5) / samplesAcross - 0.5) * side;
            sum += inkAt(cell, skeleton, column + dx, row + dy);
        }
    }
    return clamp01(sum / (samplesAcross * samplesAcross) * boldness);
}

// The ink of one glyph in one texel of a level.
double texelInk(const GlyphCell& cell, const Skeleton& skeleton, int level, int tx, int ty) {
    if (level == 0) return inkAt(cell, skeleton, pixelOfTexel(tx) + 0.5, pixelOfTexel(ty) + 0.5);
    const double pixelsPerTexel = static_cast<double>(usableSize) / (fontSize >> level);
    return meanInk(cell, skeleton, (tx + 0.5) * pixelsPerTexel, (ty + 0.5) * pixelsPerTexel,
                   pixelsPerTexel * gatherInTexels);
}

void drawGlyph(Picture& sheet, const GlyphCell& cell, int level) {
    const Skeleton skeleton = skeletonOf(letterShape(cell.character).path);
    const int last = sheet.width - 1;
    const int margin = 2; // texels beyond the cell that the gathering may reach
    const int left = std::max((cell.left >> level) - margin, 0);
    const int right = std::min((cell.right >> level) + margin, last);
    const int top = std::max((cell.top >> level) - margin, 0);
    const int bottom = std::min(((cell.top + glyphHeight) >> level) + margin, last);
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const double ink = texelInk(cell, skeleton, level, x, y) * 255.0 + 0.5;
            std::uint8_t* texel = sheet.at(x, y);
            std::fill(texel, texel + 3, std::max(texel[0], static_cast<std::uint8_t>(ink)));
        }
    }
}

} // namespace

std::vector<GlyphCell> layOutGlyphs() {
    int rowEnd[rowCount] = {};
    std::vector<GlyphCell> cells;
    for (const char character : widestFirst()) {
        const int width = letterShape(character).width;
        int row = 0;
        while (row < rowCount && rowEnd[row] + width > usableSize)
            ++row;
        if (row == rowCount) return {};
        cells.push_back({character, rowEnd[row], row * rowPitch, rowEnd[row] + width});
        rowEnd[row] += width + cellGap;
    }
    std::sort(cells.begin(), cells.end(),
              [](const GlyphCell& a, const GlyphCell& b) { return a.character < b.character; });
    return cells;
}

Picture drawFontLevel(const std::vector<GlyphCell>& cells, int level) {
    Picture sheet(fontSize >> level, fontSize >> level);
    for (const GlyphCell& cell : cells)
        drawGlyph(sheet, cell, level);
    return sheet;
}

std::string fontMetrics(const std::vector<GlyphCell>& cells) {
    std::string text = std::to_string(firstCharacter);
    (text += ' ') += std::to_string(lastCharacter);
    for (const GlyphCell& cell : cells) {
        text += ' ';
        text += cell.character;
        for (const int edge : {cell.left, cell.top, cell.right, cell.top + glyphHeight})
            (text += ' ') += std::to_string(edge);
    }
    return text;
}
