// Pieces of music, read from text files (art/sounds/scores; README.md there explains the format).
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "art/sounds/midi_writer.h"

// A note in ticks from the beginning of the piece.
struct ScoreNote {
    int start;
    int length;
    int pitch;     // MIDI key
    int velocity;  // as written, before performance.h varies it
    int delay = 0; // ticks from the start to the sound
};

// One player: an instrument of General MIDI and its settings.
struct Part {
    std::string name;
    int channel;       // 0 .. 15; drumChannel is the drum kit
    int program = 0;   // General MIDI instrument, counted from 0
    int volume = 0;    // 0 .. 127
    int pan = 0;       // 0 left, 64 middle, 127 right
    int reverb = 0;    // 0 .. 127
    int lowest = 0;    // bass notes are just above this pitch,
    int highest = 0;   // chords are between the two
    double gate = 0.0; // share of a note's written length that sounds
    int strum = 0;     // ticks from one string of a chord to the next
    std::vector<ScoreNote> notes = {};
};

inline constexpr int drumChannel = 9;

struct Score {
    double tempo = 0.0; // quarters per minute at the beginning, then at the end
    double swing = 0.5; // place of the off-beat eighth within its quarter: 0.5 is straight
    double ring = 0.0;  // seconds after the last bar, while notes still ring
    std::vector<Part> parts;
    MidiTrack conductor; // title, key, tempo and the names of the sections
    int length = 0;      // ticks
};

// Reads a score. A mistake ends the program with a message: file, line and reason.
Score readScore(const std::filesystem::path& file);
