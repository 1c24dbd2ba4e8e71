#include "tools/level/level_text.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace {

constexpr const char* keysWithWord[] = {"texturefile=", "fogcolor=", "marblecolor=", "holecount="};
constexpr std::size_t longestWord = 255;

std::string at(const Word& word, const std::string& what) {
    return std::to_string(word.line) + ":" + std::to_string(word.column) + ": " + what;
}

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

bool isInteger(const std::string& text) {
    char* end = nullptr;
    const long long value = std::strtoll(text.c_str(), &end, 0);
    const bool fits = value >= INT32_MIN && value <= UINT32_MAX;
    return !text.empty() && *end == '\0' && fits;
}

bool isDecimal(const std::string& text) {
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    return text.find_first_not_of("+-0123456789.eE") == std::string::npos && !text.empty() &&
           *end == '\0' && std::isfinite(static_cast<float>(value));
}

bool isKeyWithWord(const std::string& word) {
    return std::find(std::begin(keysWithWord), std::end(keysWithWord), word) !=
           std::end(keysWithWord);
}

// Walks over the words as the game does, up to the first that it does not take.
struct Walk {
    const std::vector<Word>& words;
    std::size_t next = 0;
    long holes = 0;
    std::string fault;

    bool fail(const std::string& what) {
        const Word end = words.empty() ? Word{"", 1, 1} : words.back();
        fault = at(next < words.size() ? words[next] : end, what);
        return false;
    }

    bool takeUnknown() {
        for (const char* key : keysWithWord) {
            if (words[next].text.starts_with(key)) {
                return fail("there must be a blank behind " + quoted(key));
            }
        }
        return fail("unknown word " + quoted(words[next].text) +
                    ", expected texturefile=, fogcolor=, marblecolor=, holecount= or .data");
    }

    bool takeDirective() {
        const std::string key = words[next].text;
        if (key == ".data") return takeHoles();
        if (!isKeyWithWord(key)) return takeUnknown();
        if (++next >= words.size()) return fail("the file ends behind " + quoted(key));
        const std::string& value = words[next].text;
        if (key != "texturefile=" && !isInteger(value)) {
            return fail("expected a whole number behind " + quoted(key) + ", not " + quoted(value));
        }
        if (key == "holecount=") holes = std::strtol(value.c_str(), nullptr, 0);
        if (key == "holecount=" && holes < 0) return fail("a count of holes is not negative");
        ++next;
        return true;
    }

    bool takeHoles() {
        ++next;
        const long numbers = 4 * holes;
        for (long i = 0; i < numbers; ++i, ++next) {
            const bool here = next < words.size() && isDecimal(words[next].text);
            if (here) continue;
            return fail("expected number " + std::to_string(i + 1) + " of the " +
                        std::to_string(numbers) + " of " + std::to_string(holes) +
                        " holes (x y width depth)" +
                        (next < words.size() ? ", not " + quoted(words[next].text) : ""));
        }
        if (next >= words.size() || words[next].text != ".end") {
            return fail("expected .end behind " + std::to_string(holes) + " holes" +
                        (next < words.size() ? ", not " + quoted(words[next].text) : "") +
                        "; does holecount= fit the data?");
        }
        ++next;
        return true;
    }
};

} // namespace

bool readLevelText(const std::string& fileName, LevelText& into) {
    std::ifstream file(fileName, std::ios::binary);
    if (!file || file.peek() == EOF) return file.is_open() && !file.bad();
    int line = 1;
    int column = 0;
    bool inWord = false;
    for (auto c = std::istreambuf_iterator<char>(file); c != std::istreambuf_iterator<char>();
         ++c) {
        ++column;
        const bool blank = std::isspace(static_cast<unsigned char>(*c)) != 0;
        if (!blank && !inWord) into.words.push_back({"", line, column});
        if (!blank) into.words.back().text += *c;
        inWord = !blank;
        if (*c == '\n') {
            ++line;
            column = 0;
        }
    }
    into.endsWithWord = inWord;
    return true;
}

std::string findFault(const LevelText& text) {
    if (text.words.empty()) return "1:1: the file is empty";
    for (const Word& word : text.words) {
        if (word.text.size() > longestWord) return at(word, "longer than 255 characters");
    }
    Walk walk = {text.words, 0, 0, {}};
    while (walk.next < text.words.size()) {
        if (!walk.takeDirective()) return walk.fault;
    }
    if (text.endsWithWord) return {};
    return at(text.words.back(), "the file goes on behind " + quoted(text.words.back().text) +
                                     " with a line break or a blank: the game takes a level only "
                                     "when it ends directly after its last word");
}

std::vector<std::string> findOddDirectives(const LevelText& text) {
    std::vector<std::string> odd;
    for (const char* key : {"texturefile=", "fogcolor=", "marblecolor=", "holecount=", ".data"}) {
        const auto there = std::count_if(text.words.begin(), text.words.end(),
                                         [&](const Word& word) { return word.text == key; });
        if (there == 0) odd.push_back(quoted(key) + " is missing");
        if (there > 1) odd.push_back(quoted(key) + " stands there more than once; the last counts");
    }
    return odd;
}
