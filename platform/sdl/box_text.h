// The text of a message box in lines.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

// Stands for every character that the box's typeface does not have.
inline constexpr char unknownCharacter = '\x7F';

// Breaks a UTF-8 text at its line ends and between words into lines of at most `columns` (1 or
// more) characters; a longer word, such as a path, continues on the next line. The lines hold one
// byte a character: printable ASCII or `unknownCharacter`. There is always at least one line.
std::vector<std::string> wrapText(const std::string& text, std::size_t columns);
