// Makes the game's pictures: the font, the grounds, the title, the background and the icons.
//
//   make_pictures <graphics folder> <icon folder>
//
// Missing folders are made; files of the same names are replaced. The same source gives the same
// bytes on every machine. Ends with 0 when every file was written.
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "art/pictures/bitmap_writer.h"
#include "art/pictures/dither.h"
#include "art/pictures/font_sheet.h"
#include "art/pictures/ground_textures.h"
#include "art/pictures/paintings.h"
#include "art/pictures/png_writer.h"

namespace {

using std::filesystem::path;

constexpr double iconCorner = 0.2; // radius of the icon's corners in its widths

bool written(bool success, const path& file) {
    if (!success) std::fprintf(stderr, "cannot write %s\n", file.c_str());
    return success;
}

path levelFile(const path& base, int level) {
    return base.string() + "_" + std::to_string(level) + ".bmp";
}

bool writeFont(const path& base) {
    const std::vector<GlyphCell> cells = layOutGlyphs();
    if (cells.empty()) {
        std::fprintf(stderr, "the glyphs do not fit into the font picture\n");
        return false;
    }
    for (int level = 0; level < fontLevels; ++level) {
        const path file = levelFile(base, level);
        if (!written(writeBitmap(drawFontLevel(cells, level), file.string()), file)) return false;
    }
    const path file = base.string() + ".dat";
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out << fontMetrics(cells);
    return written(out.flush().good(), file);
}

bool writeGround(const path& folder, const GroundTexture& texture) {
    const std::vector<Canvas> chain = groundMipChain(texture.pattern);
    for (int level = 0; level < groundTileLevels; ++level) {
        const path file = levelFile(folder / texture.name, level);
        const Picture picture = developed(chain[static_cast<std::size_t>(level)]);
        if (!written(writeBitmap(picture, file.string()), file)) return false;
    }
    return true;
}

bool writeGrounds(const path& folder) {
    for (const GroundTexture& texture : groundTextures()) {
        if (!writeGround(folder, texture)) return false;
    }
    return true;
}

bool writeScreens(const path& folder) {
    const path title = folder / "title.bmp";
    const path back = folder / "back.bmp";
    return written(writeBitmap(ditheredTo565(titlePainting()), title.string()), title) &&
           written(writeBitmap(ditheredTo565(backPainting()), back.string()), back);
}

bool writeIconFile(const path& file, int size) {
    return written(writeIcon(developed(iconPainting(size)), size * iconCorner, file.string()),
                   file);
}

bool makeFolder(const path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    return written(!error, folder);
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::fprintf(stderr, "usage: %s <graphics folder> <icon folder>\n", arguments[0]);
        return 2;
    }
    const path graphics = arguments[1];
    const path icons = arguments[2];
    const bool done = makeFolder(graphics / "font") && makeFolder(graphics / "ground") &&
                      makeFolder(icons) && writeFont(graphics / "font" / "font") &&
                      writeGrounds(graphics / "ground") && writeScreens(graphics) &&
                      writeIconFile(icons / "glorbix.png", 256) &&
                      writeIconFile(icons / "glorbix-48.png", 48);
    return done ? 0 : 1;
}
