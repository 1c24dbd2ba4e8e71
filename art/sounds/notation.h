// Reads melodies, chord symbols and rhythms from texts. Times are in ticks from the beginning of a
// section. Mistakes end the program (score_error.h).
#pragma once

#include <string>
#include <vector>

struct WrittenNote {
    int start;
    int length;
    int pitch;
};

// A chord without octaves: pitch classes 0 (c) .. 11.
struct Chord {
    int start;
    int length;
    int bass;
    std::vector<int> tones; // root first, then the third (or what replaces it) and so on
};

// A step of a rhythm that is played; the length includes the steps that hold it.
struct Hit {
    int start;
    int length;
    char sign;
};

// Reads a melody: pitches like c4 (middle c) or f#5, and r for a rest. A length such as :4 :8. :8t
// (a quarter, a dotted eighth, a triplet eighth) holds until the next one. After the length: ~ ties
// to the next note, ' is short. | ends a bar, which must be full. All of these
// are separated by blanks.
std::vector<WrittenNote> readMelody(const std::string& text, int barCount);

// Reads chord symbols: "D | G/A | Em7 A7 | Bm . . A". The chords of a bar share it evenly; '.'
// repeats the previous one. The bass follows '/' where it is not the root.
std::vector<Chord> readChords(const std::string& text, int transpose);

// Reads a rhythm: each bar has as many steps as signs. '.' is silence, '-' holds the previous sign.
// Bars are separated by '|'; "*3" after a bar plays it three times. A rhythm repeats until it fills
// `barCount` bars.
std::vector<Hit> readRhythm(const std::string& text, int barCount);

// Plays the signs of a rhythm on chords (chord_player.cpp):
//   x X         the whole chord; accented
//   a..e A..E   one of its voices, from the lowest; accented
//   R 3 5 7 8   the bass note, the chord's tones above it, its octave
//   n           the semitone below the next chord's bass note
// Returns the notes of each hit, basses just above the lowest pitch and chords between the two
// pitches. A hit that is held into the next chord ends there; a whole chord is struck again.
std::vector<std::vector<WrittenNote>>
playChords(const std::vector<Chord>& chords, const std::vector<Hit>& hits, int lowest, int highest);
