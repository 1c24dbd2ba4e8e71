// Finds the pitches at which a chord is played, so that one chord flows into the next.
#pragma once

#include "art/sounds/chord_text.h"

#include <vector>

// The chord in close position between the two pitches, lowest first: of all inversions and octaves
// the one whose voices have the shortest way from the previous voicing (which may be empty). Two
// voices a semitone apart are avoided where another inversion is nearly as close.
std::vector<int> voiceChord(const Chord& chord, const std::vector<int>& previous, int lowest,
                            int highest);

// The pitch of that class at or next above the lowest one.
int pitchAbove(int lowest, int pitchClass);
