#include "art/sounds/chord_text.h"

#include "art/sounds/note_text.h"

#include <cctype>
#include <sstream>

namespace {

struct Quality {
    const char* name;
    std::vector<int> steps; // semitones above the root
};

// Ninths and thirteenths leave out the fifth: four voices say all that matters.
const Quality qualities[] = {
    {"", {0, 4, 7}},         {"m", {0, 3, 7}},         {"5", {0, 7}},
    {"6", {0, 4, 7, 9}},     {"m6", {0, 3, 7, 9}},     {"7", {0, 4, 7, 10}},
    {"m7", {0, 3, 7, 10}},   {"maj7", {0, 4, 7, 11}},  {"add9", {0, 4, 7, 2}},
    {"madd9", {0, 3, 7, 2}}, {"9", {0, 4, 10, 2}},     {"m9", {0, 3, 10, 2}},
    {"maj9", {0, 4, 11, 2}}, {"13", {0, 4, 10, 9}},    {"sus2", {0, 2, 7}},
    {"sus4", {0, 5, 7}},     {"7sus4", {0, 5, 7, 10}}, {"9sus4", {0, 5, 10, 2}},
    {"m7b5", {0, 3, 6, 10}}, {"dim7", {0, 3, 6, 9}},   {"7b9", {0, 4, 10, 1}},
    {"69", {0, 4, 9, 2}},
};

// Reads a capital note name as in "F#" or "Bb".
int readRoot(std::string text, std::size_t& place) {
    if (place >= text.size() || !std::isupper(static_cast<unsigned char>(text[place]))) return -1;
    text[place] = static_cast<char>(std::tolower(static_cast<unsigned char>(text[place])));
    return readPitchClass(text, place);
}

bool readChord(const std::string& word, Chord& chord) {
    std::size_t place = 0;
    chord.root = readRoot(word, place);
    if (chord.root < 0) return false;
    const std::size_t slash = word.find('/', place);
    chord.bass = chord.root;
    if (slash != std::string::npos) {
        std::size_t bassPlace = slash + 1;
        chord.bass = readRoot(word, bassPlace);
        if (chord.bass < 0 || bassPlace != word.size()) return false;
    }
    const std::string name = word.substr(place, slash - place);
    for (const Quality& quality : qualities) {
        if (name != quality.name) continue;
        for (const int step : quality.steps)
            chord.tones.push_back((chord.root + step) % 12);
        return true;
    }
    return false;
}

// Lays the chords of one bar behind those already read.
bool appendBar(const std::string& bar, int start, int ticksPerBar, std::vector<ChordSpan>& chords) {
    std::istringstream stream(bar);
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    if (words.empty() || words[0] == ".") return false;
    const int share = ticksPerBar / static_cast<int>(words.size());
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == ".") {
            chords.back().length += share;
            continue;
        }
        chords.push_back({start + static_cast<int>(i) * share, share, {}});
        if (!readChord(words[i], chords.back().chord)) return false;
    }
    return true;
}

} // namespace

int readChords(const std::string& text, int ticksPerBar, std::vector<ChordSpan>& chords,
               std::string& error) {
    std::istringstream bars(text);
    int start = 0;
    for (std::string bar; std::getline(bars, bar, '|'); start += ticksPerBar) {
        if (appendBar(bar, start, ticksPerBar, chords)) continue;
        error = "no chords: \"" + bar + "\"";
        return -1;
    }
    return start;
}

Chord transposed(const Chord& chord, int semitones) {
    Chord result = chord;
    result.root = (chord.root + semitones + 12) % 12;
    result.bass = (chord.bass + semitones + 12) % 12;
    for (int& tone : result.tones)
        tone = (tone + semitones + 12) % 12;
    return result;
}
