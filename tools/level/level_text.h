// Reads a level file word by word with lines and columns, to tell an author where it is wrong.
//
// The verdict whether a level is taken is always the game's own; this only finds the place.
#pragma once

#include <string>
#include <vector>

struct Word {
    std::string text;
    int line;   // from 1
    int column; // from 1
};

struct LevelText {
    std::vector<Word> words;
    bool endsWithWord = false; // nothing follows the last word, not even a line break
};

// False with the reason in `error` when the file cannot be read.
bool readLevelText(const std::string& fileName, LevelText& into, std::string& error);

// The first place where the game stops reading, as "line:column: what is wrong"; empty when the
// words are in order.
std::string findFault(const LevelText& text);

// Directives that are missing, and so stay as the level before set them, or stand there twice.
std::vector<std::string> findOddDirectives(const LevelText& text);
