#include "art/sounds/notation.h"

#include <algorithm>
#include <cctype>
#include <sstream>

#include "art/sounds/midi_writer.h"
#include "art/sounds/score_error.h"

namespace {

struct Quality {
    const char* name;
    std::vector<int> steps; // semitones above the root
};

// Ninths and thirteenths leave out the fifth: four voices are enough.
const Quality qualities[] = {
    {"", {0, 4, 7}},       {"m", {0, 3, 7}},         {"7", {0, 4, 7, 10}},
    {"m7", {0, 3, 7, 10}}, {"maj7", {0, 4, 7, 11}},  {"m6", {0, 3, 7, 9}},
    {"69", {0, 4, 9, 2}},  {"m9", {0, 3, 10, 2}},    {"maj9", {0, 4, 11, 2}},
    {"13", {0, 4, 10, 9}}, {"7sus4", {0, 5, 7, 10}}, {"9sus4", {0, 5, 10, 2}},
};

// Takes a sign from the front of the text. Returns whether it was there.
bool take(std::string& text, char sign) {
    const bool there = !text.empty() && text[0] == sign;
    text.erase(0, there ? 1 : 0);
    return there;
}

// Takes a name like "f#" or "Bb" from the front of the text. Returns the pitch class.
int takePitchClass(std::string& text) {
    constexpr int naturals[] = {9, 11, 0, 2, 4, 5, 7}; // a b c d e f g
    const int letter = text.empty() ? 0 : std::tolower(static_cast<unsigned char>(text[0]));
    if (letter < 'a' || letter > 'g') { refuse("\"" + text + "\" is not a note"); }
    text.erase(0, 1);
    const int pitchClass = naturals[letter - 'a'];
    if (take(text, '#')) { return (pitchClass + 1) % 12; }
    return take(text, 'b') ? (pitchClass + 11) % 12 : pitchClass;
}

// Takes a length like ":8." from the front of the text. Returns it in ticks, or `before` without
// one.
int takeLength(std::string& text, int before) {
    if (!take(text, ':')) { return before; }
    const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
    const int divisor = digits == 1 || digits == 2 ? std::stoi(text) : 0;
    if (divisor < 1 || divisor > 32) { refuse("a length is 1 to 32"); }
    text.erase(0, digits);
    int length = 4 * ticksPerQuarter / divisor;
    if (take(text, '.')) { length += length / 2; }
    return take(text, 't') ? length * 2 / 3 : length;
}

std::vector<int> tonesOf(int root, const std::string& quality) {
    for (const Quality& known : qualities) {
        if (quality == known.name) {
            std::vector<int> tones;
            tones.reserve(known.steps.size());
            for (const int step : known.steps) {
                tones.push_back((root + step) % 12);
            }
            return tones;
        }
    }
    refuse("no such chord: " + quality);
}

Chord readChord(std::string word, int start, int length, int transpose) {
    const int root = (takePitchClass(word) + transpose) % 12;
    Chord chord{start, length, root, {}};
    const std::size_t slash = word.find('/');
    if (slash != std::string::npos) {
        std::string bass = word.substr(slash + 1);
        chord.bass = (takePitchClass(bass) + transpose) % 12;
    }
    chord.tones = tonesOf(root, word.substr(0, slash));
    return chord;
}

// Returns the bars of a rhythm without blanks, repeated as they say.
std::vector<std::string> readBars(const std::string& text) {
    std::vector<std::string> bars;
    std::istringstream in(text);
    for (std::string bar; std::getline(in, bar, '|');) {
        std::erase_if(bar, [](unsigned char letter) { return std::isspace(letter); });
        const std::size_t star = bar.find('*');
        int count = 1;
        if (star == 0 || bar.empty() ||
            (star != std::string::npos && !(std::istringstream(bar.substr(star + 1)) >> count))) {
            refuse("not a rhythm: " + text);
        }
        bars.insert(bars.end(), static_cast<std::size_t>(count), bar.substr(0, star));
    }
    return bars;
}

} // namespace

std::vector<WrittenNote> readMelody(const std::string& text, int barCount) {
    std::vector<WrittenNote> notes;
    int now = 0;
    int length = ticksPerQuarter;
    bool tied = false;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        if (word == "|") {
            if (now % ticksPerBar != 0) {
                refuse("bar " + std::to_string(now / ticksPerBar + 1) + " is not full");
            }
            continue;
        }
        const bool rest = take(word, 'r');
        int pitch = -1;
        if (!rest) {
            pitch = takePitchClass(word);
            pitch += word.empty() ? 0 : 12 * (word[0] - '0' + 1);
            word.erase(0, 1);
        }
        length = takeLength(word, length);
        if (!word.empty() && word != "'" && word != "~") {
            refuse("\"" + word + "\" does not belong there");
        }
        if (tied && pitch == notes.back().pitch) {
            notes.back().length += length;
        } else if (!rest && !tied) {
            notes.push_back({now, word == "'" ? length / 2 : length, pitch});
        }
        if (tied && pitch != notes.back().pitch) { refuse("a tie between two pitches"); }
        tied = word == "~";
        now += length;
    }
    if (now != barCount * ticksPerBar) {
        refuse("the melody is not " + std::to_string(barCount) + " bars long");
    }
    return notes;
}

std::vector<Chord> readChords(const std::string& text, int transpose) {
    std::vector<Chord> chords;
    std::istringstream bars(text);
    int start = 0;
    for (std::string bar; std::getline(bars, bar, '|'); start += ticksPerBar) {
        std::istringstream in(bar);
        std::vector<std::string> words;
        for (std::string word; in >> word;) {
            words.push_back(word);
        }
        const int share = ticksPerBar / std::max(1, static_cast<int>(words.size()));
        for (std::size_t i = 0; i < words.size(); ++i) {
            if (words[i] == "." && i > 0) {
                chords.back().length += share;
            } else {
                const int place = start + static_cast<int>(i) * share;
                chords.push_back(readChord(words[i], place, share, transpose));
            }
        }
    }
    return chords;
}

std::vector<Hit> readRhythm(const std::string& text, int barCount) {
    const std::vector<std::string> bars = readBars(text);
    if (bars.empty() || barCount % static_cast<int>(bars.size()) != 0) {
        refuse(std::to_string(bars.size()) + " bars do not fill " + std::to_string(barCount));
    }
    std::vector<Hit> hits;
    int start = 0;
    for (int i = 0; i < barCount; ++i) {
        const std::string& signs = bars[static_cast<std::size_t>(i) % bars.size()];
        const int step = ticksPerBar / static_cast<int>(signs.size());
        if (ticksPerBar != step * static_cast<int>(signs.size())) {
            refuse("uneven steps: " + signs);
        }
        for (const char sign : signs) {
            const bool held = sign == '-';
            if (held && !hits.empty() && hits.back().start + hits.back().length == start) {
                hits.back().length += step;
            } else if (sign != '.' && !held) {
                hits.push_back({start, step, sign});
            }
            start += step;
        }
    }
    return hits;
}
