#include "tools/level/command_line.h"

#include <algorithm>
#include <cstdio>

bool Words::takeFlag(const std::string& flag) {
    return std::erase(words, flag) > 0;
}

std::optional<std::string> Words::takeOption(const std::string& option) {
    const auto found = std::find(words.begin(), words.end(), option);
    if (found == words.end() || found + 1 == words.end()) { return {}; }
    std::string value = *(found + 1);
    words.erase(found, found + 2);
    return value;
}

std::string Words::unknownOption() const {
    const auto found = std::find_if(words.begin(), words.end(), [](const std::string& word) {
        return word.size() > 1 && word[0] == '-';
    });
    return found == words.end() ? std::string() : *found;
}

int refuseWords(const std::string& verb, const std::string& why) {
    std::fprintf(stderr, "glorbix-level %s: %s (see glorbix-level %s --help)\n", verb.c_str(),
                 why.c_str(), verb.c_str());
    return cannotDo;
}

int refuseFile(const std::string& why) {
    std::fprintf(stderr, "glorbix-level: %s\n", why.c_str());
    return cannotDo;
}
