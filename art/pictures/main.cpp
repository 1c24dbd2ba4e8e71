// Makes the game's pictures: make_pictures GAME ICONS [PICTURE...]
//
// Writes GAME/graphics and the icons in the folder ICONS, replacing files. The bitmaps have the
// same bytes on every machine. With names of pictures (font, title, back, icons, or that of a
// ground) it makes only these. Exits with 0 when every file was written.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <string>

#include "art/common/byte_writer.h"
#include "art/common/portable_math.h"
#include "art/pictures/font_sheet.h"
#include "art/pictures/ground_textures.h"
#include "art/pictures/image.h"
#include "art/pictures/paintings.h"
#include "data/asset_files.h"
#include "data/mip_chain.h"
#include "tools/png/png_writer.h"

namespace {

using std::filesystem::path;

struct Ground {
    const char* name;
    GroundPattern* pattern;
};

constexpr Ground grounds[] = {
    {"tiles", tilePattern},  {"snow", snowPattern},        {"terracotta", terracottaPattern},
    {"sand", sandPattern},   {"hexagons", hexagonPattern}, {"scales", scalePattern},
    {"moon", moonPattern},   {"circuit", circuitPattern},  {"lava", lavaPattern},
    {"disco", discoPattern}, {"candy", candyPattern},
};

bool writeFont(const path& game) {
    const std::vector<GlyphCell> cells = layOutGlyphs();
    if (cells.empty()) {
        std::cerr << "the glyphs do not fit into the font sheet\n";
        return false;
    }
    for (int level = 0; level < fontLevels; ++level) {
        const path file = game / mipFileName(fontBaseName, level);
        if (!writeBitmap(drawFontLevel(cells, level), file)) { return false; }
    }
    return ByteWriter{fontMetrics(cells)}.writeTo(game / fontMetricsFile);
}

// OpenGL reads each row from a place that is a multiple of four bytes, but the game gives it rows
// without padding, as the file has them. Of the 2 x 2 level it therefore takes bytes 0 to 5 and 8
// to 13, and the last two are 0. Returns the texels to write so that OpenGL takes three equal ones
// and a dark one, with the given mean, or a darker one of the same hue where they cannot reach it.
Image8 smallestSquare(const Rgb8& mean) {
    constexpr double most = 3.0 * 255.0;
    const double gain = std::min(4.0, most / std::max(mean[1], mean[2]));
    Rgb8 t{};
    std::transform(mean.begin(), mean.end(), t.begin(), [&](std::uint8_t part) {
        return static_cast<std::uint8_t>(std::lround(std::min(gain * part, most) / 3.0));
    });
    const auto redLeft = static_cast<std::uint8_t>(std::max(0.0, gain * mean[0] - most));
    Image8 square(2, 2); // top row first; the file begins with the bottom row
    square.at(0, 1) = square.at(1, 1) = t;
    square.at(0, 0) = {0, 0, t[0]}; // bytes 6 to 8; the third texel begins at byte 8
    square.at(1, 0) = {t[1], t[2], redLeft};
    return square;
}

bool writeGround(const path& game, const Ground& ground) {
    const path base = game / groundFolder / ground.name;
    const std::vector<Image> chain = groundMipChain(ground.pattern);
    int level = 0;
    for (const Image& image : chain) {
        const Image8 texels =
            image.width == 2 ? smallestSquare(toSrgb8(chain.back()).at(0, 0)) : toSrgb8(image);
        if (!writeBitmap(texels, mipFileName(base.string(), level++))) { return false; }
    }
    return true;
}

// Returns how much of the pixel around a point is inside a square with rounded corners.
double coverage(double x, double y, double size) {
    const double radius = 0.2 * size;
    const double half = 0.5 * size;
    const double dx = std::max(0.0, std::fabs(x - half) - (half - radius));
    const double dy = std::max(0.0, std::fabs(y - half) - (half - radius));
    return clamp01(radius + 0.5 - std::sqrt(dx * dx + dy * dy));
}

bool writeIcon(const path& file, int size) {
    const Image8 image = toSrgb8(iconPainting(size));
    std::vector<std::uint8_t> pixels;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const double inside = coverage(x + 0.5, y + 0.5, size);
            pixels.insert(pixels.end(), image.at(x, y).begin(), image.at(x, y).end());
            pixels.push_back(static_cast<std::uint8_t>(std::lround(inside * 255.0)));
        }
    }
    std::string error;
    const bool written = writePngRgba(file.string(), size, size, pixels, error);
    std::cerr << error << (written ? "" : "\n");
    return written;
}

bool writeIcons(const path& folder) {
    std::error_code ignored; // without the folder, writing an icon fails
    std::filesystem::create_directories(folder, ignored);
    return writeIcon(folder / "glorbix.png", 256) && writeIcon(folder / "glorbix-48.png", 48);
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount < 3) {
        std::cerr << "usage: make_pictures GAME ICONS [PICTURE...]\n";
        return 2;
    }
    const path game = arguments[1];
    const auto wanted = [&](const std::string& picture) {
        char** end = arguments + argumentCount;
        return argumentCount == 3 || std::find(arguments + 3, end, picture) != end;
    };
    bool done = !wanted("font") || writeFont(game);
    for (const Ground& ground : grounds) {
        done = done && (!wanted(ground.name) || writeGround(game, ground));
    }
    done = done &&
           (!wanted("title") || writeBitmap(ditherTo565(titlePainting()), game / titlePictureFile));
    done = done &&
           (!wanted("back") || writeBitmap(ditherTo565(backPainting()), game / backPictureFile));
    done = done && (!wanted("icons") || writeIcons(arguments[2]));
    return done ? 0 : 1;
}
