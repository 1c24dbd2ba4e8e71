// Reads chord symbols: "D | G/A | Em7 A7 | Bm . . A".
//
// Bars are parted by '|'. The chords of a bar share it evenly, and '.' gives the chord before it
// one share more. After '/' stands the bass note where it is not the root.
#pragma once

#include <string>
#include <vector>

// A chord without octaves: pitch classes 0 (c) .. 11.
struct Chord {
    int root;
    int bass;
    std::vector<int> tones; // root first, then the third (or what stands for it) and so on
};

// A chord and the ticks for which it holds.
struct ChordSpan {
    int start;
    int length;
    Chord chord;
};

// Appends the chords of the text, counted from tick 0. Returns their length in ticks, or -1 with
// the reason in `error`.
int readChords(const std::string& text, int ticksPerBar, std::vector<ChordSpan>& chords,
               std::string& error);

// The same chord so many semitones higher.
Chord transposed(const Chord& chord, int semitones);
