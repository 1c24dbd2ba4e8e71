#include "art/sounds/notation.h"

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstdlib>
#include <string>

#include "art/sounds/score_error.h"

namespace {

// Returns the lowest pitch of that class from `lowest` on.
int pitchAbove(int lowest, int pitchClass) {
    return lowest + ((pitchClass - lowest) % 12 + 12) % 12;
}

// Returns the sum of the distances of the voices from the nearest ones of the previous chord, in
// semitones.
int movementFrom(const std::vector<int>& previous, const std::vector<int>& pitches) {
    int sum = 0;
    for (const int pitch : pitches) {
        int nearest = INT_MAX;
        for (const int before : previous) {
            nearest = std::min(nearest, std::abs(pitch - before));
        }
        sum += previous.empty() ? 0 : nearest;
    }
    return sum;
}

// Returns the cost of a voicing; a semitone between two voices costs as much as five of movement.
int costOf(const std::vector<int>& pitches, const std::vector<int>& previous, int lowest,
           int highest) {
    const int middle = (lowest + highest) / 2;
    int cost = std::abs((pitches.front() + pitches.back()) / 2 - middle) / 2;
    cost += movementFrom(previous, pitches);
    cost += 12 * std::max(0, pitches.back() - highest);
    for (std::size_t i = 1; i < pitches.size(); ++i) {
        cost += pitches[i] - pitches[i - 1] == 1 ? 5 : 0;
    }
    return cost;
}

// Returns the pitches of a chord in close position: the inversion and octave that are nearest to
// the previous ones.
std::vector<int> voice(const Chord& chord, const std::vector<int>& previous, int lowest,
                       int highest) {
    std::vector<int> best;
    int bestCost = INT_MAX;
    for (int bottom = lowest; bottom <= std::max(lowest, highest - 7); ++bottom) {
        std::vector<int> pitches;
        pitches.reserve(chord.tones.size());
        for (const int tone : chord.tones) {
            pitches.push_back(pitchAbove(bottom, tone));
        }
        std::sort(pitches.begin(), pitches.end());
        const int cost = costOf(pitches, previous, lowest, highest);
        if (cost < bestCost) {
            bestCost = cost;
            best = pitches;
        }
    }
    return best;
}

// Plays hits in order of time; each voicing follows from the previous one.
struct ChordPlayer {
    const std::vector<Chord>& chords;
    int lowest;
    int highest;
    std::vector<int> voicing = {};
    std::size_t voicedChord = static_cast<std::size_t>(-1);

    int bassPitch(char sign, std::size_t chord) const {
        const std::vector<int>& tones = chords[chord].tones;
        const Chord& next = chords[std::min(chord + 1, chords.size() - 1)];
        const int bass = pitchAbove(lowest, chords[chord].bass);
        switch (sign) {
        case 'R': return bass;
        case '8': return bass + 12;
        case '3': return pitchAbove(bass, tones[1]);
        case '5': return pitchAbove(bass, tones[2]);
        case '7': return pitchAbove(bass, tones.back());
        case 'n': return pitchAbove(lowest, next.bass) - 1;
        default: refuse(std::string("no such sign: ") + sign);
        }
    }

    std::vector<int> pitchesOf(char sign, std::size_t chord) {
        // Voices every chord, also where the part is silent, so that the voices keep moving.
        while (voicedChord != chord) {
            ++voicedChord;
            voicing = voice(chords[voicedChord], voicing, lowest, highest);
        }
        if (sign == 'x' || sign == 'X') { return voicing; }
        const int index = std::tolower(static_cast<unsigned char>(sign)) - 'a';
        if (index >= 0 && index <= 4) {
            const auto i = static_cast<std::size_t>(index);
            return {voicing[i % voicing.size()] + 12 * static_cast<int>(i / voicing.size())};
        }
        return {bassPitch(sign, chord)};
    }

    std::vector<WrittenNote> play(const Hit& hit) {
        std::vector<WrittenNote> notes;
        const bool wholeChord = hit.sign == 'x' || hit.sign == 'X';
        for (std::size_t i = 0; i < chords.size(); ++i) {
            const int start = std::max(hit.start, chords[i].start);
            const int end = std::min(hit.start + hit.length, chords[i].start + chords[i].length);
            if (start < end && (wholeChord || notes.empty())) {
                for (const int pitch : pitchesOf(hit.sign, i)) {
                    notes.push_back({start, end - start, pitch});
                }
            }
        }
        return notes;
    }
};

} // namespace

std::vector<std::vector<WrittenNote>> playChords(const std::vector<Chord>& chords,
                                                 const std::vector<Hit>& hits, int lowest,
                                                 int highest) {
    ChordPlayer player{chords, lowest, highest};
    std::vector<std::vector<WrittenNote>> notes;
    notes.reserve(hits.size());
    for (const Hit& hit : hits) {
        notes.push_back(player.play(hit));
    }
    return notes;
}
