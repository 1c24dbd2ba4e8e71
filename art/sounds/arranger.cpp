#include "art/sounds/arranger.h"

#include "art/sounds/chord_text.h"
#include "art/sounds/drum_text.h"
#include "art/sounds/grid_text.h"
#include "art/sounds/note_text.h"
#include "art/sounds/pattern_player.h"

#include <algorithm>

namespace {

constexpr int accent = 14;
constexpr int mostSwell = 6;
constexpr int ghostShare = 55; // percent of the loudness of a drum that is hardly touched

int averagePitch(const std::vector<WrittenNote>& notes) {
    int sum = 0;
    for (const WrittenNote& note : notes)
        sum += note.pitch;
    return notes.empty() ? 0 : sum / static_cast<int>(notes.size());
}

// A melody swells as it rises above its middle, by half a step of velocity for each semitone.
int swellOf(int semitones) {
    return std::clamp(semitones / 2, -mostSwell, mostSwell);
}

// Works through one section; everything it reads is counted from the section's own beginning.
struct SectionArranger {
    const Piece& piece;
    const Section& section;
    int start;
    int ticksPerBar;
    int length = 0;
    std::vector<ChordSpan> chords;
    Arrangement& arrangement;
    std::string& error;

    bool readHarmony();
    bool readLine(const Line& line);
    bool readMelody(const Line& line, std::vector<PlayedNote>& notes);
    bool readPattern(const Line& line, const Part& part, std::vector<PlayedNote>& notes);
    bool readDrums(const Line& line, std::vector<PlayedNote>& notes);
    int loudnessAt(const Dynamics& dynamics, int tick) const;
};

int SectionArranger::loudnessAt(const Dynamics& dynamics, int tick) const {
    return dynamics.from + (dynamics.to - dynamics.from) * tick / length;
}

bool SectionArranger::readHarmony() {
    length = readChords(section.chords, ticksPerBar, chords, error);
    if (length < 0) return false;
    for (ChordSpan& span : chords)
        span.chord = transposed(span.chord, section.transpose);
    return true;
}

bool SectionArranger::readMelody(const Line& line, std::vector<PlayedNote>& notes) {
    std::vector<WrittenNote> written;
    const int textLength = readNotes(line.text, ticksPerBar, written, error);
    if (textLength < 0) return false;
    if (textLength != length) {
        error = std::to_string(textLength / ticksPerBar) + " bars instead of " +
                std::to_string(length / ticksPerBar);
        return false;
    }
    const int middle = averagePitch(written);
    for (const WrittenNote& note : written) {
        const int loudness = loudnessAt(line.dynamics, note.start) + swellOf(note.pitch - middle) +
                             (note.accented ? accent : 0);
        const int sounding = note.isShort ? note.length / 2 : note.length;
        notes.push_back(
            {start + note.start, sounding, note.pitch + section.transpose + line.shift, loudness});
    }
    return true;
}

bool SectionArranger::readPattern(const Line& line, const Part& part,
                                  std::vector<PlayedNote>& notes) {
    std::vector<GridHit> hits;
    if (!readGrid(line.text, length / ticksPerBar, ticksPerBar, hits, error)) return false;
    PatternPlayer player{chords, part.lowest, part.highest};
    for (const GridHit& hit : hits) {
        const int loudness = loudnessAt(line.dynamics, hit.start);
        int delay = 0;
        for (const PatternNote& note : player.play(hit)) {
            notes.push_back({start + note.start, note.length, note.pitch,
                             loudness + (note.accented ? accent : 0), delay});
            delay += part.strum;
        }
    }
    if (player.unknownSign == 0) return true;
    error = std::string("no such sign: ") + player.unknownSign;
    return false;
}

bool SectionArranger::readDrums(const Line& line, std::vector<PlayedNote>& notes) {
    std::vector<DrumRow> rows;
    if (!readDrumRows(line.text, rows, error)) return false;
    for (const DrumRow& row : rows) {
        std::vector<GridHit> hits;
        if (!readGrid(row.grid, length / ticksPerBar, ticksPerBar, hits, error)) return false;
        for (const GridHit& hit : hits) {
            int loudness = loudnessAt(line.dynamics, hit.start);
            if (hit.sign == 'X') loudness += accent;
            if (hit.sign == 'o') loudness = loudness * ghostShare / 100;
            notes.push_back({start + hit.start, hit.length, row.pitch, loudness});
        }
    }
    return true;
}

bool SectionArranger::readLine(const Line& line) {
    for (std::size_t i = 0; i < piece.parts.size(); ++i) {
        if (piece.parts[i].name != line.part) continue;
        std::vector<PlayedNote>& notes = arrangement.notesOfPart[i];
        switch (line.kind) {
        case LineKind::Melody: return readMelody(line, notes);
        case LineKind::Pattern: return readPattern(line, piece.parts[i], notes);
        case LineKind::Drums: return readDrums(line, notes);
        }
    }
    error = "no such part";
    return false;
}

} // namespace

bool arrange(const Piece& piece, Arrangement& arrangement, std::string& error) {
    arrangement.notesOfPart.resize(piece.parts.size());
    for (const Section& section : piece.sections) {
        SectionArranger arranger{.piece = piece,
                                 .section = section,
                                 .start = arrangement.length,
                                 .ticksPerBar = piece.beatsPerBar * ticksPerQuarter,
                                 .chords = {},
                                 .arrangement = arrangement,
                                 .error = error};
        if (!arranger.readHarmony()) {
            error.insert(0, piece.title + ", " + section.name + ": ");
            return false;
        }
        for (const Line& line : section.lines) {
            if (arranger.readLine(line)) continue;
            error.insert(0, piece.title + ", " + section.name + ", " + line.part + ": ");
            return false;
        }
        arrangement.sections.push_back({arrangement.length, arranger.length, &section});
        arrangement.length += arranger.length;
    }
    return true;
}
