// Plays the signs of a rhythm on the chords of a section.
//
//   x X         the whole chord; accented
//   a..e A..E   one of its voices, from the lowest; accented
//   R 3 5 7 8   the bass note, the chord's tones above it, its octave
//   n           the semitone below the next chord's bass note
#pragma once

#include <vector>

#include "art/sounds/notation.h"

// Plays one rhythm of one section. A hit that is held into the next chord ends there; a whole chord
// is struck again.
struct ChordPlayer {
    const std::vector<Chord>& chords;
    int lowest;  // pitch above which basses and chords are played
    int highest; // pitch that chords do not exceed where they can
    std::vector<int> voicing = {};
    std::size_t voicedChord = static_cast<std::size_t>(-1);

    // Returns the notes of a hit. Hits must come in order of time.
    std::vector<WrittenNote> play(const Hit& hit);

private:
    void leadVoicesTo(std::size_t chord);
    std::vector<int> pitchesOf(char sign, std::size_t chord);
    int bassPitch(char sign, std::size_t chord) const;
};
