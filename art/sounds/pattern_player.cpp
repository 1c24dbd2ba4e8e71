#include "art/sounds/pattern_player.h"

#include "art/sounds/voicing.h"

#include <algorithm>
#include <cctype>

std::vector<PatternNote> PatternPlayer::play(const GridHit& hit) {
    std::vector<PatternNote> notes;
    const bool wholeChord = hit.sign == 'x' || hit.sign == 'X';
    const bool accented = hit.sign == 'X' || (hit.sign >= 'A' && hit.sign <= 'E');
    const int end = hit.start + hit.length;
    for (std::size_t span = spanAt(hit.start); span < chords.size(); ++span) {
        const int start = std::max(hit.start, chords[span].start);
        const int stop = std::min(end, chords[span].start + chords[span].length);
        if (start >= stop) break;
        for (const int pitch : pitchesOf(hit.sign, span))
            notes.push_back({start, stop - start, pitch, accented});
        if (!wholeChord) break;
    }
    return notes;
}

std::size_t PatternPlayer::spanAt(int tick) const {
    std::size_t span = 0;
    while (span + 1 < chords.size() && chords[span + 1].start <= tick)
        ++span;
    return span;
}

// Goes through every chord on the way, so that the voices are led even where the part is silent.
void PatternPlayer::moveVoicesTo(std::size_t span) {
    while (voicedSpan != span) {
        ++voicedSpan;
        voicing = voiceChord(chords[voicedSpan].chord, voicing, lowest, highest);
    }
}

std::vector<int> PatternPlayer::pitchesOf(char sign, std::size_t span) {
    moveVoicesTo(span);
    if (sign == 'x' || sign == 'X') return voicing;
    const int voice = std::tolower(static_cast<unsigned char>(sign)) - 'a';
    if (voice >= 0 && voice <= 4) {
        const auto place = static_cast<std::size_t>(voice);
        return {voicing[place % voicing.size()] + 12 * static_cast<int>(place / voicing.size())};
    }
    const int pitch = bassPitch(sign, span);
    if (pitch >= 0) return {pitch};
    if (unknownSign == 0) unknownSign = sign;
    return {};
}

int PatternPlayer::bassPitch(char sign, std::size_t span) {
    const Chord& chord = chords[span].chord;
    const Chord& next = chords[std::min(span + 1, chords.size() - 1)].chord;
    const int bass = pitchAbove(lowest, chord.bass);
    switch (sign) {
    case 'R': return bass;
    case '8': return bass + 12;
    case '3': return pitchAbove(bass, chord.tones[1]);
    case '5': return pitchAbove(bass, chord.tones[2 % chord.tones.size()]);
    case '7': return pitchAbove(bass, chord.tones.back());
    case 'n': return pitchAbove(lowest, next.bass) - 1;
    case 'u': return pitchAbove(lowest, next.bass) + 1;
    default: return -1;
    }
}
