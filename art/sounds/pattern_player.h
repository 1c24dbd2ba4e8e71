// Plays the signs of a pattern on the chords of a section (the signs are listed in arranger.h).
#pragma once

#include "art/sounds/chord_text.h"
#include "art/sounds/grid_text.h"

#include <vector>

struct PatternNote {
    int start;  // ticks from the beginning of the section
    int length; // ticks
    int pitch;
    bool accented;
};

// Lives for one line of one section. A hit that is held into the next chord ends there; a whole
// chord is struck again with the new tones.
struct PatternPlayer {
    const std::vector<ChordSpan>& chords;
    int lowest;
    int highest;
    std::vector<int> voicing = {};
    std::size_t voicedSpan = static_cast<std::size_t>(-1);
    char unknownSign = 0; // the first sign that is not one, if any

    // The notes of a hit. Hits must come in the order of time.
    std::vector<PatternNote> play(const GridHit& hit);

private:
    std::size_t spanAt(int tick) const;
    void moveVoicesTo(std::size_t span);
    std::vector<int> pitchesOf(char sign, std::size_t span);
    int bassPitch(char sign, std::size_t span);
};
