// Plays an arranged piece the way players do, and writes it down as MIDI tracks.
//
// Nobody strikes every key alike: the first beat weighs more than the second, a beat more than what
// lies between, and the hand is never quite even. All of it follows from the score, so a piece
// always sounds the same.
#pragma once

#include "art/sounds/arranger.h"
#include "art/sounds/midi_writer.h"

#include <vector>

// The first track carries tempo and names, the others follow Piece.parts. No two notes of one
// pitch overlap in a part: the earlier one ends where the later begins.
std::vector<MidiTrack> perform(const Piece& piece, const Arrangement& arrangement);

// The tick at which the piece is over, its last sounds faded.
int lastTickOf(const Piece& piece, const Arrangement& arrangement);
