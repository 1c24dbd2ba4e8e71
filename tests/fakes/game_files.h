// The game's files, as small as the game accepts them, for tests to change or take away.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "sim/level.h"

// The working directory while it lives; gone afterwards with all that is in it.
class EmptyFolder {
public:
    EmptyFolder();
    ~EmptyFolder();

private:
    std::filesystem::path before_;
    std::filesystem::path folder_;
};

inline constexpr double testGlyphHeight = 33; // pixels: of the test font, and its line spacing

// The width of a character of the test font in pixels; those it does not have advance by 10.
constexpr double testGlyphWidth(char c) {
    return 10 + c % 7;
}

void writeFile(const std::string& name, const std::string& content);
std::string readFile(const std::string& name);

// A picture whose pixels, counted from the lower left corner, have colours 0xRRGGBB; one of one
// colour; and a mip chain of one colour, or whose level k has the colour k + 1.
void writeBitmap(const std::string& name, int width, int height,
                 const std::function<unsigned(int x, int y)>& colour);
void writeBitmap(const std::string& name, int width, int height, unsigned colour = 0x102030);
void writeMipChain(const std::string& base, int size, int levels, unsigned colour = 0);

// A level file: what `head` says, the ground texture "ground", and holes of x, y, width, depth.
std::string levelText(const std::vector<Hole>& holes, const std::string& head = "");

// All files that the game needs, with these level files as its levels 1, 2, 3, ...; the best times
// are 100, 110, ... 190 seconds, by aaa, bbb, ... jjj.
void writeGameFiles(const std::vector<std::string>& levels = {levelText({})});
