#include "art/sounds/performer.h"

#include "art/sounds/exact_math.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int eighth = ticksPerQuarter / 2;
constexpr int volumeController = 7, panController = 10, expressionController = 11;
constexpr int reverbController = 91, chorusController = 93;
constexpr int fullExpression = 127;

// The tempo moves in steps of a beat, from that of the piece through those of its sections.
struct TempoWalk {
    const Piece& piece;
    double now;

    void walkThrough(const SectionMark& mark, MidiTrack& track);
};

void TempoWalk::walkThrough(const SectionMark& mark, MidiTrack& track) {
    const double goal = mark.section->lastTempo;
    if (goal <= 0.0) return;
    const double first = now;
    for (int tick = 0; tick < mark.length; tick += ticksPerQuarter) {
        now = first + (goal - first) * (tick + ticksPerQuarter) / mark.length;
        track.tempo(mark.start + tick, now);
    }
}

MidiTrack conductorTrack(const Piece& piece, const Arrangement& arrangement) {
    MidiTrack track;
    track.text(0, MidiText::TrackName, piece.title);
    track.text(0, MidiText::Copyright, "Glorbix, zlib licence");
    track.timeSignature(piece.beatsPerBar);
    track.keySignature(piece.sharps, piece.minor);
    track.tempo(0, piece.tempo);
    TempoWalk tempo{piece, piece.tempo};
    for (const SectionMark& mark : arrangement.sections) {
        track.text(mark.start, MidiText::Marker, mark.section->name);
        tempo.walkThrough(mark, track);
    }
    return track;
}

// Moves the second half of a beat later and stretches the first to match.
int swung(int tick, double swing) {
    const int beat = tick - tick % ticksPerQuarter;
    const int within = tick % ticksPerQuarter;
    const double share = within < eighth ? within * swing / eighth
                                         : swing + (within - eighth) * (1.0 - swing) / eighth;
    return beat + static_cast<int>(std::lround(share * ticksPerQuarter));
}

// What the place in the bar adds to a note's velocity.
int weightOf(int tick, int ticksPerBar) {
    if (tick % ticksPerBar == 0) return 5;
    if (tick % ticksPerQuarter == 0) return 1;
    return tick % eighth == 0 ? -3 : -6;
}

int velocityOf(const PlayedNote& note, int ticksPerBar, Dice& hand) {
    constexpr double unevenness = 4.0;
    const int velocity = note.loudness + weightOf(note.start, ticksPerBar) +
                         static_cast<int>(unevenness * hand.next());
    return std::clamp(velocity, 1, 127);
}

void setUpChannel(const Part& part, MidiTrack& track) {
    track.text(0, MidiText::TrackName, part.name);
    track.program(part.channel, part.program);
    track.control(part.channel, volumeController, part.volume);
    track.control(part.channel, panController, part.pan);
    track.control(part.channel, expressionController, fullExpression);
    track.control(part.channel, reverbController, part.reverb);
    track.control(part.channel, chorusController, 0);
}

// Where the next note of the same pitch begins, or a tick beyond all music.
int nextStartOf(const std::vector<PlayedNote>& notes, std::size_t index) {
    for (std::size_t i = index + 1; i < notes.size(); ++i)
        if (notes[i].pitch == notes[index].pitch) return notes[i].start;
    return 1 << 30;
}

MidiTrack playPart(const Piece& piece, const Part& part, std::vector<PlayedNote> notes) {
    MidiTrack track;
    setUpChannel(part, track);
    std::stable_sort(notes.begin(), notes.end(),
                     [](const PlayedNote& a, const PlayedNote& b) { return a.start < b.start; });
    Dice hand{static_cast<std::uint32_t>(part.channel + 1)};
    for (std::size_t i = 0; i < notes.size(); ++i) {
        const PlayedNote& note = notes[i];
        const int sounding = std::max(1, static_cast<int>(note.length * part.gate));
        const int start = note.start + note.delay;
        const int end = std::min(note.start + sounding, nextStartOf(notes, i));
        if (end <= start) continue;
        const int velocity = velocityOf(note, piece.beatsPerBar * ticksPerQuarter, hand);
        track.note(part.channel, note.pitch, velocity, swung(start, piece.swing),
                   swung(end, piece.swing));
    }
    return track;
}

} // namespace

std::vector<MidiTrack> perform(const Piece& piece, const Arrangement& arrangement) {
    std::vector<MidiTrack> tracks{conductorTrack(piece, arrangement)};
    for (std::size_t i = 0; i < piece.parts.size(); ++i)
        tracks.push_back(playPart(piece, piece.parts[i], arrangement.notesOfPart[i]));
    return tracks;
}

int lastTickOf(const Piece& piece, const Arrangement& arrangement) {
    double tempo = piece.tempo;
    for (const Section& section : piece.sections)
        if (section.lastTempo > 0.0) tempo = section.lastTempo;
    const double ringTicks = piece.ringOut * tempo / 60.0 * ticksPerQuarter;
    return arrangement.length + static_cast<int>(ringTicks);
}
