// Plays the signs of a rhythm on the chords of a section.
//
//   x X         the whole chord; accented
//   a..e A..E   one of its voices, from the lowest; accented
//   R 3 5 7 8   the bass note, the chord's tones above it, its octave
//   n           the semitone below the next chord's bass note
#pragma once

#include <vector>

#include "art/sounds/notation.h"

// Returns the notes of each hit, basses just above the lowest pitch and chords between the two
// pitches. A hit that is held into the next chord ends there; a whole chord is struck again.
std::vector<std::vector<WrittenNote>>
playChords(const std::vector<Chord>& chords, const std::vector<Hit>& hits, int lowest, int highest);
