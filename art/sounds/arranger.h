// Turns the text of a piece into the notes that each part plays.
#pragma once

#include "art/sounds/score.h"

#include <string>
#include <vector>

// A note as it is to be played, in ticks from the beginning of the piece.
struct PlayedNote {
    int start;
    int length;
    int pitch;
    int loudness;  // key velocity as written, before the player's own hand
    int delay = 0; // ticks by which the sound comes after the start that is meant
};

// A place at which a section begins.
struct SectionMark {
    int start;
    int length;
    const Section* section;
};

// The notes of a piece by part, in the order of Piece.parts, and the sections by time.
struct Arrangement {
    std::vector<std::vector<PlayedNote>> notesOfPart;
    std::vector<SectionMark> sections;
    int length = 0; // ticks
};

// Signs of a pattern: 'x' the whole chord, 'X' the same accented; 'a' to 'e' its voices from below,
// 'A' to 'E' accented; 'R' the bass note, '3' '5' '7' the chord's tones above it, '8' the octave,
// 'n' and 'u' the semitone below and above the next chord's bass note. Of a drum: 'x', 'X' accented,
// 'o' hardly touched.
//
// False, with section, part and reason in `error`, when a line cannot be read or a part is unknown.
bool arrange(const Piece& piece, Arrangement& arrangement, std::string& error);
