// Plays a score as players would: the first quarter of a bar is louder than the second, a quarter
// louder than what is between, and no two notes are quite equal. The random numbers are fixed, so a
// score always sounds the same.
#pragma once

#include <vector>

#include "art/sounds/midi_writer.h"
#include "art/sounds/score.h"

// Returns the conductor's track, then one for each part. No two notes of one pitch overlap in a
// part: the earlier one ends where the later one starts.
std::vector<MidiTrack> perform(const Score& score);

// Returns the tick at which the piece is over, after the last notes have faded.
int lastTickOf(const Score& score);
