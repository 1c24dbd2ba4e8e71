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

// Where a character of the test font is in its picture: pixels, rows from the top. Those that it
// does not have advance by 10. "!" gives the line spacing.
struct TestGlyph {
    double left, top, width, height;
};
constexpr TestGlyph testGlyph(char c) {
    return {1.0 * c, 1.0 + c % 3, 10.0 + c % 7, c == '!' ? 33.0 : 20.0 + c % 5};
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
