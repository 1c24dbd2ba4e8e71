// Line breaks for message boxes.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

// Takes the place of every character that is not printable ASCII.
inline constexpr char unknownCharacter = '\x7F';

// Breaks a UTF-8 text at its line ends and between words into lines of at most `columns` (1 or
// more) characters. A word that is longer than a line, such as a path, continues on the next line.
// Each character is one byte: printable ASCII or `unknownCharacter`. Returns at least one line.
std::vector<std::string> wrapText(const std::string& text, std::size_t columns);
