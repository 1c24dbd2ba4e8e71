// Standard MIDI Files of format 1.
//
// The first track is for tempo, metre and names, each of the others for one part. Events may be
// added in any order.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

inline constexpr int ticksPerQuarter = 480;
inline constexpr int ticksPerBar = 4 * ticksPerQuarter;

enum class MidiText : std::uint8_t {
    Copyright = 2,
    TrackName = 3, // of the first track: the title of the piece
    Marker = 6,    // the name of a section
};

struct MidiTrack {
    void text(int tick, MidiText kind, const std::string& words);
    void tempo(int tick, double quartersPerMinute);
    void signatures(int sharps, bool minor); // of the key, and of four quarters a bar
    void programChange(int channel, int program);
    void controlChange(int channel, int controller, int value);

    // A note and its end. Where one note ends and another begins at the same tick, the end comes
    // first, so that a repeated note is heard.
    void note(int channel, int pitch, int velocity, int start, int end);

    struct Event {
        int tick;
        int rank; // order among the events of one tick
        std::string bytes;
    };
    std::vector<Event> events;
};

// Replaces the file; every track ends at `lastTick`. Returns false, after a message, when it cannot
// be written.
bool writeMidiFile(const std::filesystem::path& file, const std::vector<MidiTrack>& tracks,
                   int lastTick);
