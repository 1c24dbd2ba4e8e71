// Writes a Standard MIDI File of format 1.
//
// Fill one MidiTrack for each player and one, the first, for tempo, metre and names; then hand
// them to writeMidiFile. Events may be added in any order of time.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

// Texts that a track can carry.
enum class MidiText : std::uint8_t {
    Copyright = 2,
    TrackName = 3, // of the first track: the title of the piece
    Marker = 6,    // the name of a section
};

struct MidiTrack {
    void text(int tick, MidiText kind, const std::string& words);
    void tempo(int tick, double quartersPerMinute);
    void timeSignature(int beatsPerBar);
    void keySignature(int sharps, bool minor);
    void program(int channel, int number);
    void control(int channel, int controller, int value);

    // A note with its end. Where one note ends and another begins at the same tick, the end is
    // written first, so that a repeated note is heard.
    void note(int channel, int pitch, int velocity, int start, int end);

    struct Event {
        int tick;
        int rank; // order among the events of one tick
        std::string bytes;
    };
    std::vector<Event> events;
};

// Every track ends at the last tick, which is the end of the piece. False when the file cannot be
// written.
bool writeMidiFile(const std::filesystem::path& path, const std::vector<MidiTrack>& tracks,
                   int ticksInQuarter, int lastTick);
