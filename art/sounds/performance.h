// Plays a score as musicians would: the first quarter of a bar is louder than the others, a quarter
// louder than the notes between, and velocities vary slightly. The random numbers are fixed, so a
// score always sounds the same.
#pragma once

#include <filesystem>

#include "art/sounds/score.h"

// Replaces a MIDI file: the conductor's track, then one for each part. No two notes of one pitch
// overlap in a part: the earlier one ends where the later one starts. Returns false, after a
// message, when the file cannot be written.
bool writePerformance(const Score& score, const std::filesystem::path& file);
