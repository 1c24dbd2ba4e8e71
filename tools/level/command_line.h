// What the verbs have in common: their words, their help, their ends.
#pragma once

#include <optional>
#include <string>
#include <vector>

// Exit codes.
inline constexpr int allWell = 0;
inline constexpr int levelHasFaults = 1; // or a drive that did not reach the goal
inline constexpr int cannotDo = 2;       // wrong words, or a file that cannot be read or written

// The words behind a verb. Each verb takes what it knows; what is left are files, or wrong.
struct Words {
    std::vector<std::string> words;

    // Whether the flag is there; it is taken out.
    bool takeFlag(const std::string& flag);

    // The word behind an option, both taken out; nothing when the option is not there. An option
    // without a word behind it stays, and is reported as unknown.
    std::optional<std::string> takeOption(const std::string& option);

    // The first word that looks like an option but was not taken; empty when there is none.
    std::string unknownOption() const;
};

// Reports wrong use in one line, with where to find help; `cannotDo`.
int refuseWords(const std::string& verb, const std::string& why);

// Reports a failure in one line; `cannotDo`.
int refuseFile(const std::string& why);

// The verbs of glorbix-level (tools/level/main.cpp has their help). Each gives an exit code.
int checkLevels(Words words);
int drawMap(Words words);
int driveLevel(Words words);
int newLevel(Words words);
