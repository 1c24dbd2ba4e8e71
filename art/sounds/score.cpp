#include "art/sounds/score.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>

#include "art/sounds/notation.h"
#include "art/sounds/score_error.h"

namespace {

// The drums of General MIDI that the scores use, by their keys.
const std::map<std::string, int> drumKeys = {
    {"kick", 36}, {"stick", 37}, {"snare", 38}, {"tom2", 47}, {"hat", 42},    {"pedal", 44},
    {"open", 46}, {"crash", 49}, {"ride", 51},  {"tamb", 54}, {"shaker", 70},
};

// Loudness as MIDI velocities.
const std::map<std::string, int> dynamicMarks = {
    {"pp", 40}, {"p", 52}, {"mp", 64}, {"mf", 76}, {"f", 90}, {"ff", 104},
};

constexpr int accent = 14; // velocity of an accented note above the others

template <typename Value>
const Value& lookUp(const std::map<std::string, Value>& table, const std::string& name) {
    const auto found = table.find(name);
    if (found == table.end()) { refuse("unknown name: " + name); }
    return found->second;
}

std::string restOf(std::istringstream& in) {
    std::string rest;
    std::getline(in >> std::ws, rest);
    return rest;
}

struct ScoreReader {
    Score score;
    std::map<std::string, std::string> phrases = {};
    // The section that is being read.
    std::vector<Chord> chords = {};
    int start = 0;
    int barCount = 0;
    int transpose = 0;
    int velocityAtStart = 0; // of the line that is being read
    int velocityAtEnd = 0;

    // Replaces every $name by the phrase of that name.
    std::string expand(const std::string& line) const {
        std::string result;
        for (std::size_t i = 0; i < line.size(); ++i) {
            if (line[i] != '$') {
                result += line[i];
                continue;
            }
            const std::size_t end = line.find_first_of(" |*/", i);
            result += lookUp(phrases, line.substr(i + 1, end - i - 1));
            i = std::min(end, line.size()) - 1;
        }
        return result;
    }

    void readLine(const std::string& line) {
        std::istringstream in(expand(line));
        std::string word;
        in >> word;
        if (word.empty() || readHeader(word, in) || readSection(word, in)) { return; }
        for (Part& part : score.parts) {
            if (line.starts_with(part.name + ":")) {
                in.seekg(static_cast<std::streamoff>(part.name.size() + 1));
                readMusic(part, in);
                return;
            }
        }
        refuse("no such part");
    }

    bool readHeader(const std::string& word, std::istringstream& in) {
        if (word == "title") {
            score.conductor.text(0, MidiText::TrackName, restOf(in));
            score.conductor.text(0, MidiText::Copyright, "Glorbix, zlib licence");
        } else if (word == "tempo") {
            in >> score.tempo;
            score.conductor.tempo(0, score.tempo);
        } else if (word == "key") {
            int sharps = 0;
            std::string mode;
            in >> sharps >> mode;
            score.conductor.signatures(sharps, mode == "minor");
        } else if (word == "swing") {
            in >> score.swing;
        } else if (word == "ring") {
            in >> score.ring;
        } else if (word == "part" || word == "drumkit") {
            readPart(word == "drumkit", in);
        } else if (word == "phrase") {
            std::string name;
            in >> name;
            phrases[name] = restOf(in);
        } else {
            return false;
        }
        if (in.fail()) { refuse("something is missing"); }
        return true;
    }

    void readPart(bool drums, std::istringstream& in) {
        Part part{"", drums ? drumChannel : static_cast<int>(score.parts.size())};
        in >> part.program >> part.volume >> part.pan >> part.reverb >> part.lowest >>
            part.highest >> part.gate >> part.strum;
        part.name = restOf(in);
        score.parts.push_back(part);
    }

    bool readSection(const std::string& word, std::istringstream& in) {
        if (word == "section") {
            start = score.length;
            transpose = 0;
            score.conductor.text(start, MidiText::Marker, restOf(in));
        } else if (word == "transpose") {
            in >> transpose;
        } else if (word == "chords") {
            chords = readChords(restOf(in), transpose);
            score.length = start + chords.back().start + chords.back().length;
            barCount = (score.length - start) / ticksPerBar;
        } else if (word == "reach") {
            double goal = 0.0;
            in >> goal;
            readTempoChange(goal);
        } else {
            return false;
        }
        return true;
    }

    // Changes the tempo evenly over the section, in steps of a quarter.
    void readTempoChange(double goal) {
        const double first = score.tempo;
        const int length = score.length - start;
        for (int tick = 0; tick < length; tick += ticksPerQuarter) {
            score.tempo = first + (goal - first) * (tick + ticksPerQuarter) / length;
            score.conductor.tempo(start + tick, score.tempo);
        }
    }

    int velocityAt(int tick) const {
        return velocityAtStart + (velocityAtEnd - velocityAtStart) * tick / (score.length - start);
    }

    // Reads the dynamics of the line, "mf" or "p..f", its kind, and its text.
    void readMusic(Part& part, std::istringstream& in) {
        std::string dynamics;
        std::string kind;
        in >> dynamics >> kind;
        const std::size_t dots = dynamics.find("..");
        velocityAtStart = lookUp(dynamicMarks, dynamics.substr(0, dots));
        velocityAtEnd = dots == std::string::npos ? velocityAtStart
                                                  : lookUp(dynamicMarks, dynamics.substr(dots + 2));
        const std::string text = restOf(in);
        if (kind == "chords") {
            addPattern(part, text);
        } else if (kind == "drums") {
            addDrums(part, text);
        } else {
            const std::map<std::string, int> octaves = {{"melody", 0}, {"8va", 12}, {"8vb", -12}};
            addMelody(part, text, lookUp(octaves, kind));
        }
    }

    // A melody gets louder above its mean pitch, by one velocity step for two semitones.
    void addMelody(Part& part, const std::string& text, int shift) {
        constexpr int maxSwell = 6;
        const std::vector<WrittenNote> notes = readMelody(text, barCount);
        int sum = 0;
        for (const WrittenNote& note : notes) {
            sum += note.pitch;
        }
        for (const WrittenNote& note : notes) {
            const int above = note.pitch - sum / static_cast<int>(notes.size());
            const int swell = std::clamp(above / 2, -maxSwell, maxSwell);
            part.notes.push_back({start + note.start, note.length, note.pitch + transpose + shift,
                                  velocityAt(note.start) + swell});
        }
    }

    void addPattern(Part& part, const std::string& text) {
        const std::vector<Hit> hits = readRhythm(text, barCount);
        const auto notes = playChords(chords, hits, part.lowest, part.highest);
        for (std::size_t i = 0; i < hits.size(); ++i) {
            const bool accented = hits[i].sign >= 'A' && hits[i].sign <= 'E';
            const int added = accented || hits[i].sign == 'X' ? accent : 0;
            const int velocity = velocityAt(hits[i].start) + added;
            int delay = 0;
            for (const WrittenNote& note : notes[i]) {
                part.notes.push_back(
                    {start + note.start, note.length, note.pitch, velocity, delay});
                delay += part.strum;
            }
        }
    }

    // Adds drums, each with its rhythm, separated by '/': x, X accented, o very soft.
    void addDrums(Part& part, const std::string& text) {
        constexpr int ghostPercent = 55;
        std::istringstream rows(text);
        for (std::string row; std::getline(rows, row, '/');) {
            std::istringstream in(row);
            std::string name;
            in >> name;
            const int key = lookUp(drumKeys, name);
            for (const Hit& hit : readRhythm(restOf(in), barCount)) {
                int velocity = velocityAt(hit.start) + (hit.sign == 'X' ? accent : 0);
                if (hit.sign == 'o') { velocity = velocity * ghostPercent / 100; }
                part.notes.push_back({start + hit.start, hit.length, key, velocity});
            }
        }
    }
};

} // namespace

Score readScore(const std::filesystem::path& file) {
    scorePlace = file.string();
    std::ifstream in(file);
    if (!in) { refuse("cannot be read"); }
    ScoreReader reader;
    std::string statement;
    int number = 0;
    // A line that starts with a blank continues the previous one. '#' starts a comment.
    for (std::string line; std::getline(in, line);) {
        ++number;
        if (!line.starts_with(' ')) {
            reader.readLine(statement);
            statement.clear();
            scorePlace = file.string() + ":" + std::to_string(number);
        }
        statement += line.starts_with('#') ? "" : line;
    }
    reader.readLine(statement);
    return reader.score;
}
