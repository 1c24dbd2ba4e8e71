#include "art/sounds/note_text.h"

#include "art/sounds/score.h"

#include <cctype>
#include <sstream>

namespace {

// Reads words one by one and remembers what carries over from one to the next.
struct NoteReader {
    int ticksPerBar;
    std::vector<WrittenNote>& notes;
    int now = 0;
    int length = ticksPerQuarter;
    bool tied = false;

    bool readWord(const std::string& word);
    bool readLength(const std::string& word, std::size_t& place);
    void play(int pitch, const std::string& marks);
};

bool NoteReader::readLength(const std::string& word, std::size_t& place) {
    if (place >= word.size() || word[place] != ':') return true;
    int divisor = 0;
    for (++place; place < word.size() && std::isdigit(static_cast<unsigned char>(word[place]));
         ++place)
        divisor = 10 * divisor + (word[place] - '0');
    if (divisor < 1 || divisor > 32) return false;
    length = 4 * ticksPerQuarter / divisor;
    if (word.compare(place, 1, ".") == 0) length += length / 2, ++place;
    if (word.compare(place, 1, "t") == 0) length = length * 2 / 3, ++place;
    return true;
}

void NoteReader::play(int pitch, const std::string& marks) {
    const auto has = [&](char mark) { return marks.find(mark) != std::string::npos; };
    if (tied)
        notes.back().length += length;
    else
        notes.push_back({now, length, pitch, has('!'), has('\'')});
    tied = has('~');
}

bool NoteReader::readWord(const std::string& word) {
    if (word == "|") return now % ticksPerBar == 0;
    std::size_t place = 0;
    const bool rest = word[0] == 'r';
    int pitch = 0;
    if (rest) {
        ++place;
    } else {
        pitch = readPitchClass(word, place);
        if (pitch < 0 || place >= word.size() || word[place] < '0' || word[place] > '8')
            return false;
        pitch += 12 * (word[place++] - '0' + 1);
    }
    if (!readLength(word, place)) return false;
    const std::string marks = word.substr(place);
    if (marks.find_first_not_of("!'~") != std::string::npos) return false;
    if (tied && (rest || notes.back().pitch != pitch)) return false;
    if (!rest) play(pitch, marks);
    now += length;
    return true;
}

// The text with every bar line standing free.
std::string withLooseBars(const std::string& text) {
    std::string loose;
    for (const char letter : text)
        loose += letter == '|' ? std::string(" | ") : std::string(1, letter);
    return loose;
}

} // namespace

int readPitchClass(const std::string& text, std::size_t& place) {
    constexpr int naturals[] = {9, 11, 0, 2, 4, 5, 7}; // a b c d e f g
    if (place >= text.size() || text[place] < 'a' || text[place] > 'g') return -1;
    int pitchClass = naturals[text[place++] - 'a'];
    if (text.compare(place, 1, "#") == 0)
        ++pitchClass, ++place;
    else if (text.compare(place, 1, "b") == 0)
        --pitchClass, ++place;
    return (pitchClass + 12) % 12;
}

int readNotes(const std::string& text, int ticksPerBar, std::vector<WrittenNote>& notes,
              std::string& error) {
    NoteReader reader{ticksPerBar, notes};
    std::istringstream words(withLooseBars(text));
    std::string word;
    while (words >> word) {
        if (reader.readWord(word)) continue;
        error = "bar " + std::to_string(reader.now / ticksPerBar + 1) + ": \"" + word +
                "\" does not belong there";
        return -1;
    }
    if (!reader.tied && reader.now % ticksPerBar == 0) return reader.now;
    error = "the last bar is not complete";
    return -1;
}
