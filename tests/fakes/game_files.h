// The game's files, as small as the game accepts them, for tests to change or remove.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "sim/level.h"

// The working directory for its lifetime; removed afterwards with everything in it.
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

// Write a picture with colours 0xRRGGBB, counted from the lower left corner; a picture of one
// colour; and a mip chain of one colour, or (colour 0) whose level k has the colour k + 1.
void writeBitmap(const std::string& name, int width, int height,
                 const std::function<unsigned(int x, int y)>& colour);
void writeBitmap(const std::string& name, int width, int height, unsigned colour = 0x102030);
void writeMipChain(const std::string& base, int size, int levels, unsigned colour = 0);

// Returns a level file: `head`, the ground texture "ground", and these holes.
std::string levelText(const std::vector<Hole>& holes, const std::string& head = "");

// Writes all files that the game needs, with these level files as levels 1, 2, 3, ...; the best
// times are 100, 110, ... 190 seconds, by aaa, bbb, ... jjj.
void writeGameFiles(const std::vector<std::string>& levels = {levelText({})});
