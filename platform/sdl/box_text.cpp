#include "platform/sdl/box_text.h"

#include <sstream>

namespace {

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

bool isPrintable(char byte) {
    return byte >= ' ' && byte <= '~';
}

std::string plainText(const std::string& text) {
    std::string plain;
    for (const char byte : text) {
        if (byte == '\r' || continuesCharacter(byte)) { continue; }
        if (byte == '\n' || isPrintable(byte)) {
            plain += byte;
        } else {
            plain += byte == '\t' ? ' ' : unknownCharacter;
        }
    }
    return plain;
}

// Starts a new line with the word. A word that is longer than a line fills several; the next word
// may follow on the last of them.
void breakWord(std::string word, std::size_t columns, std::vector<std::string>& lines) {
    while (word.size() > columns) {
        lines.push_back(word.substr(0, columns));
        word.erase(0, columns);
    }
    lines.push_back(word);
}

void wrapParagraph(const std::string& paragraph, std::size_t columns,
                   std::vector<std::string>& lines) {
    std::istringstream words(paragraph);
    std::string word;
    bool first = true;
    while (words >> word) {
        if (!first && lines.back().size() + 1 + word.size() <= columns) {
            lines.back() += " " + word;
        } else {
            breakWord(word, columns, lines);
        }
        first = false;
    }
    if (first) { lines.emplace_back(); }
}

} // namespace

std::vector<std::string> wrapText(const std::string& text, std::size_t columns) {
    std::vector<std::string> lines;
    std::istringstream paragraphs(plainText(text));
    std::string paragraph;
    while (std::getline(paragraphs, paragraph)) {
        wrapParagraph(paragraph, columns, lines);
    }
    if (lines.empty()) { lines.emplace_back(); }
    return lines;
}
