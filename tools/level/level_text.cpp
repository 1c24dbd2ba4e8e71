#include "tools/level/level_text.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "data/level.h"
#include "data/tokens.h"
#include "tools/level/text_file.h"

namespace {

constexpr const char* keysWithWord[] = {"texturefile=", "fogcolor=", "marblecolor=", "holecount="};
constexpr std::int64_t mostColour = UINT32_MAX; // only the lower 24 bits are a colour
constexpr std::size_t longestWord = 255;

std::string at(const Word& word, const std::string& what) {
    return std::to_string(word.line) + ":" + std::to_string(word.column) + ": " + what;
}

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

// Why the word is no whole number from 0 to `most`; empty when it is one.
std::string whyNoCount(const std::string& word, std::int64_t most, std::int64_t& value) {
    if (!parseInteger(word.c_str(), value)) return ", not " + quoted(word);
    if (value < 0) return ": " + quoted(word) + " is negative";
    return value > most ? ": " + quoted(word) + " is too large" : "";
}

// Why the word is no number of a hole; empty when it is one.
std::string whyNoDecimal(const std::string& word) {
    char* end = nullptr;
    const double value = std::strtod(word.c_str(), &end);
    if (word.find_first_not_of("+-0123456789.eE") != std::string::npos || *end != '\0')
        return ", not " + quoted(word);
    return std::isfinite(static_cast<float>(value)) ? "" : ": " + quoted(word) + " is too large";
}

bool isKeyWithWord(const std::string& word) {
    return std::find(std::begin(keysWithWord), std::end(keysWithWord), word) !=
           std::end(keysWithWord);
}

// Walks over the words as the game does, up to the first that it does not take.
struct Walk {
    const std::vector<Word>& words;
    std::size_t next = 0;
    std::int64_t holes = 0;
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
        std::int64_t colour = 0;
        if (key == "holecount=" && !takeCount(key, mostHoles, holes)) return false;
        if (key.ends_with("color=") && !takeCount(key, mostColour, colour)) return false;
        ++next;
        return true;
    }

    bool takeCount(const std::string& key, std::int64_t most, std::int64_t& value) {
        const std::string why = whyNoCount(words[next].text, most, value);
        return why.empty() || fail("expected a whole number from 0 to " + std::to_string(most) +
                                   " behind " + quoted(key) + why);
    }

    bool takeHoles() {
        ++next;
        const std::int64_t numbers = 4 * holes;
        for (std::int64_t i = 0; i < numbers; ++i, ++next) {
            const bool ends = next >= words.size();
            const std::string why = ends ? ": the file ends here" : whyNoDecimal(words[next].text);
            if (why.empty()) continue;
            return fail("expected number " + std::to_string(i + 1) + " of the " +
                        std::to_string(numbers) + " of " + std::to_string(holes) +
                        " holes (x y width depth)" + why);
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

bool readLevelText(const std::string& fileName, LevelText& into, std::string& error) {
    std::string text;
    if (!readTextFile(fileName, text, error)) {
        return false;
    }
    int line = 1;
    int column = 0;
    bool inWord = false;
    for (const char c : text) {
        ++column;
        const bool blank = std::isspace(static_cast<unsigned char>(c)) != 0;
        if (!blank && !inWord) into.words.push_back({"", line, column});
        if (!blank) into.words.back().text += c;
        inWord = !blank;
        if (c == '\n') {
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
        if (word.text.find('\0') != std::string::npos) return at(word, "a zero byte in a word");
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
