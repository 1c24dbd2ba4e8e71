#include "art/sounds/drum_text.h"

#include <sstream>

namespace {

struct Drum {
    const char* name;
    int pitch;
};

constexpr Drum kit[] = {
    {"kick", 36},  {"stick", 37}, {"snare", 38},  {"clap", 39},    {"tom1", 50},     {"tom2", 47},
    {"tom3", 43},  {"hat", 42},   {"pedal", 44},  {"open", 46},    {"crash", 49},    {"ride", 51},
    {"bell", 53},  {"tamb", 54},  {"splash", 55}, {"cowbell", 56}, {"shaker", 70},   {"conga", 63},
    {"tumba", 64}, {"clave", 75}, {"woodHi", 76}, {"woodLow", 77}, {"triangle", 81}, {"cabasa", 69},
};

int pitchOf(const std::string& name) {
    for (const Drum& drum : kit)
        if (name == drum.name) return drum.pitch;
    return -1;
}

} // namespace

bool readDrumRows(const std::string& text, std::vector<DrumRow>& rows, std::string& error) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line, '/');) {
        std::istringstream words(line);
        std::string name;
        std::string grid;
        words >> name;
        std::getline(words, grid);
        const int pitch = pitchOf(name);
        if (pitch < 0) {
            error = "no such drum: " + name;
            return false;
        }
        rows.push_back({pitch, grid});
    }
    return true;
}
