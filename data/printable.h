// Texts of foreign files in message boxes and on terminals. Any file can be named as one of the
// game's, and its bytes could move the cursor, change colours, or fill the screen.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

inline constexpr std::size_t shownTokenLength = 40; // characters

// Returns the text with a question mark in place of each byte that is not part of a printable
// character: printable ASCII, or UTF-8 without its control characters.
std::string printable(std::string_view text);

// Does the same for a word of a file. One of more than shownTokenLength characters is cut there,
// and "..." follows.
std::string printableToken(std::string_view token);
