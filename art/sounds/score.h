// A piece of music as a composer writes it down: parts, sections, chords and lines of text.
//
// A Piece is a list of sections that are played one after the other. A section names the chord of
// every bar and gives each part that plays in it a line of text. There are three kinds of line:
//
//   melody   notes by name, see note_text.h:            "f#5:4. e5 a5:4 | b5 a5:8 f#5:2 r:8"
//   pattern  a grid of steps that the chords fill:      "R-..5-..8-..5-.." or "..x...x."
//   drums    one such grid for every drum of the kit:   "kick X...x... / snare ..X...X."
//
// In a grid, bars are parted by '|', "*3" after a bar plays it three times, and a grid that is
// shorter than the section starts over. The number of signs in a bar is the number of steps it is
// divided into. '.' is silence, '-' holds the last sign.
#pragma once

#include <string>
#include <vector>

// All times of a score are counted in ticks.
constexpr int ticksPerQuarter = 480;

// The loudness of a line at its beginning and its end, as MIDI key velocities; it changes evenly
// in between.
struct Dynamics {
    int from;
    int to;
};
constexpr Dynamics pianissimo{40, 40}, piano{52, 52}, mezzoPiano{64, 64}, mezzoForte{76, 76},
    forte{90, 90}, fortissimo{104, 104};
constexpr Dynamics growing(Dynamics from, Dynamics to) {
    return {from.from, to.to};
}

constexpr int drumChannel = 9;

// One player: an instrument of General MIDI with a place in the room.
struct Part {
    std::string name;
    int channel;       // 0 .. 15, one for each part; drumChannel is the drum kit
    int program;       // General MIDI instrument, counted from 0
    int volume;        // 0 .. 127, the part's level in the mix
    int pan;           // 0 left, 64 middle, 127 right
    int reverb;        // 0 .. 127
    int lowest;        // patterns place basses close above this pitch and chords between the two;
    int highest;       // melodies are written as they sound and go where they like
    double gate = 0.9; // share of a note's written length that sounds
    int strum = 0;     // ticks from one string of a chord to the next
};

enum class LineKind {
    Melody,
    Pattern,
    Drums,
};

// What one part plays in one section.
struct Line {
    std::string part;
    LineKind kind;
    Dynamics dynamics;
    std::string text;
    int shift = 0; // semitones, for playing a theme in another octave
};

Line melody(std::string part, Dynamics dynamics, std::string text, int shift = 0);
Line pattern(std::string part, Dynamics dynamics, std::string text);
Line drums(Dynamics dynamics, std::string text);

struct Section {
    std::string name;
    std::string chords; // one entry for each bar, see chord_text.h; their number is the length
    std::vector<Line> lines;
    int transpose = 0;      // semitones, chords and melodies alike
    double lastTempo = 0.0; // quarters per minute reached at the section's end, 0: no change

    // One more line, to be played with the others; a part may have several.
    void add(Line line);
};

struct Piece {
    std::string title;
    std::string fileName;
    double tempo;    // quarters per minute at the beginning
    int beatsPerBar; // in quarters
    int sharps;      // of the key signature; flats are negative
    bool minor;      // of the key signature
    double swing;    // place of the off-beat eighth within its beat: 0.5 is straight
    double ringOut;  // seconds between the end of the last bar and the end of the piece
    std::vector<Part> parts;
    std::vector<Section> sections;
};
