#include "art/pictures/typeface.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <vector>

namespace {

// Each character is a line: the character, its width, its path. A line that starts with a blank
// continues the one before.
std::vector<LetterShape> readTypeface() {
    std::vector<LetterShape> shapes;
    std::ifstream in(GLORBIX_TYPEFACE);
    for (char next = firstCharacter; in.peek() == next; ++next) {
        LetterShape shape{};
        in >> shape.character >> shape.width;
        do {
            std::string line;
            std::getline(in, line);
            shape.path += line;
        } while (in.peek() == ' ');
        shapes.push_back(shape);
    }
    if (shapes.empty() || shapes.back().character != lastCharacter) {
        std::cerr << GLORBIX_TYPEFACE ": not every character is there, in order of the codes\n";
        std::exit(1);
    }
    return shapes;
}

} // namespace

const LetterShape& letterShape(char character) {
    static const std::vector<LetterShape> shapes = readTypeface();
    return shapes[static_cast<std::size_t>(character - firstCharacter)];
}
