#include "fakes/game_files.h"

#include <fstream>
#include <random>
#include <sstream>

namespace fs = std::filesystem;

namespace {

// Returns a new folder, with a name that no other run uses.
fs::path newFolder() {
    std::random_device random;
    for (;;) {
        const std::string name = "glorbix-test-" + std::to_string(random());
        if (fs::create_directory(fs::temp_directory_path() / name)) {
            return fs::temp_directory_path() / name;
        }
    }
}

// Every glyph's left edge is its code, so that the text can be read from the quads.
std::string testFontMetrics() {
    std::ostringstream text;
    text << "33 126";
    for (char c = '!'; c <= '~'; ++c) {
        const auto [left, top, width, height] = testGlyph(c);
        text << '\n'
             << c << ' ' << left << ' ' << top << ' ' << left + width << ' ' << top + height;
    }
    return text.str();
}

} // namespace

EmptyFolder::EmptyFolder() : before_(fs::current_path()), folder_(newFolder()) {
    fs::current_path(folder_);
}

EmptyFolder::~EmptyFolder() {
    fs::current_path(before_);
    fs::remove_all(folder_);
}

void writeFile(const std::string& name, const std::string& content) {
    const fs::path path = name;
    if (path.has_parent_path()) { fs::create_directories(path.parent_path()); }
    std::ofstream(path, std::ios::binary) << content;
}

std::string readFile(const std::string& name) {
    std::ostringstream content;
    content << std::ifstream(name, std::ios::binary).rdbuf();
    return content.str();
}

void writeBitmap(const std::string& name, int width, int height,
                 const std::function<unsigned(int x, int y)>& colour) {
    std::string file(54, '\0');
    file[18] = static_cast<char>(width & 255);
    file[19] = static_cast<char>(width >> 8);
    file[22] = static_cast<char>(height & 255);
    file[23] = static_cast<char>(height >> 8);
    file[28] = 24;
    for (int i = 0; i < width * height; ++i) {
        const unsigned pixel = colour(i % width, i / width);
        file += {static_cast<char>(pixel & 255), static_cast<char>(pixel >> 8 & 255),
                 static_cast<char>(pixel >> 16)};
    }
    writeFile(name, file);
}

void writeBitmap(const std::string& name, int width, int height, unsigned colour) {
    writeBitmap(name, width, height, [colour](int, int) { return colour; });
}

void writeMipChain(const std::string& base, int size, int levels, unsigned colour) {
    for (int k = 0; k < levels; ++k) {
        writeBitmap(base + "_" + std::to_string(k) + ".bmp", size >> k, size >> k,
                    colour != 0 ? colour : static_cast<unsigned>(k + 1));
    }
}

std::string levelText(const std::vector<Hole>& holes, const std::string& head) {
    std::ostringstream text;
    text << head << "\ntexturefile= ground\nholecount= " << holes.size() << "\n.data\n";
    for (const Hole& hole : holes) {
        text << hole.x << ' ' << hole.y << ' ' << hole.width << ' ' << hole.depth << '\n';
    }
    text << ".end";
    return text.str();
}

void writeGameFiles(const std::vector<std::string>& levels) {
    std::string list = std::to_string(levels.size());
    for (std::size_t i = 0; i < levels.size(); ++i) {
        const std::string name = "maps/" + std::to_string(i + 1) + ".map";
        writeFile(name, levels[i]);
        list += "\n" + name;
    }
    writeFile("maps/maplist.dat", list);
    writeMipChain("ground", groundTextureSize, groundTextureLevels);
    writeMipChain("graphics/font/font", 256, 9);
    writeFile("graphics/font/font.dat", testFontMetrics());
    std::string bestTimesText;
    for (int i = 0; i < 10; ++i) {
        bestTimesText +=
            std::to_string(100 + 10 * i) + " " + std::string(3, static_cast<char>('a' + i)) + " ";
    }
    writeFile("highScore.dat", bestTimesText);
    writeBitmap("graphics/title.bmp", 640, 480, 0x111111);
    writeBitmap("graphics/back.bmp", 640, 480, 0x222222);
}
