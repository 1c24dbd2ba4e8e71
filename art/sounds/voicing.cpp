#include "art/sounds/voicing.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

namespace {

constexpr int semitoneCost = 5; // as bad as five semitones of movement
constexpr int outsideCost = 12; // for every semitone beyond the range

// The chord in close position above a pitch.
std::vector<int> stackAbove(int lowest, const std::vector<int>& tones) {
    std::vector<int> pitches;
    pitches.reserve(tones.size());
    for (const int tone : tones)
        pitches.push_back(pitchAbove(lowest, tone));
    std::sort(pitches.begin(), pitches.end());
    return pitches;
}

// How far each voice is from the nearest one before.
int movementFrom(const std::vector<int>& previous, const std::vector<int>& pitches) {
    int sum = 0;
    for (const int pitch : pitches) {
        int nearest = INT_MAX;
        for (const int before : previous)
            nearest = std::min(nearest, std::abs(pitch - before));
        sum += nearest;
    }
    return sum;
}

int costOf(const std::vector<int>& pitches, const std::vector<int>& previous, int lowest,
           int highest) {
    const int middle = (lowest + highest) / 2;
    int cost = std::abs((pitches.front() + pitches.back()) / 2 - middle) / 2;
    if (!previous.empty()) cost += movementFrom(previous, pitches);
    cost += outsideCost * std::max(0, pitches.back() - highest);
    for (std::size_t i = 1; i < pitches.size(); ++i)
        if (pitches[i] - pitches[i - 1] == 1) cost += semitoneCost;
    return cost;
}

} // namespace

int pitchAbove(int lowest, int pitchClass) {
    return lowest + ((pitchClass - lowest) % 12 + 12) % 12;
}

std::vector<int> voiceChord(const Chord& chord, const std::vector<int>& previous, int lowest,
                            int highest) {
    std::vector<int> best;
    int bestCost = INT_MAX;
    for (int bottom = lowest; bottom <= std::max(lowest, highest - 7); ++bottom) {
        std::vector<int> pitches = stackAbove(bottom, chord.tones);
        const int cost = costOf(pitches, previous, lowest, highest);
        if (cost >= bestCost) continue;
        bestCost = cost;
        best = std::move(pitches);
    }
    return best;
}
