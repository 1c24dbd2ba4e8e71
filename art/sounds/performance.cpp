#include "art/sounds/performance.h"

#include <algorithm>
#include <climits>
#include <cmath>

#include "art/common/random.h"

namespace {

constexpr int eighth = ticksPerQuarter / 2;

void setUpChannel(const Part& part, MidiTrack& track) {
    const std::pair<int, int> controllers[] = {
        {7, part.volume},  {10, part.pan}, {11, 127}, // expression
        {91, part.reverb}, {93, 0},                   // chorus
    };
    track.text(0, MidiText::TrackName, part.name);
    track.programChange(part.channel, part.program);
    for (const auto& [controller, value] : controllers) {
        track.controlChange(part.channel, controller, value);
    }
}

// Returns a tick moved by the swing, which lengthens the first eighth of a quarter and shortens the
// second.
int swingTick(int tick, double swing) {
    const int within = tick % ticksPerQuarter;
    const double share = within < eighth ? within * swing / eighth
                                         : swing + (within - eighth) * (1.0 - swing) / eighth;
    return tick - within + static_cast<int>(std::lround(share * ticksPerQuarter));
}

// Returns the change of a note's velocity by its place in the bar.
int metricAccent(int tick) {
    if (tick % ticksPerBar == 0) { return 5; }
    if (tick % ticksPerQuarter == 0) { return 1; }
    return tick % eighth == 0 ? -3 : -6;
}

int velocityOf(const ScoreNote& note, Random& random) {
    constexpr double unevenness = 4.0;
    const int velocity =
        note.velocity + metricAccent(note.start) + static_cast<int>(unevenness * random.next());
    return std::clamp(velocity, 1, 127);
}

int nextStartOf(const std::vector<ScoreNote>& notes, std::size_t index) {
    for (std::size_t i = index + 1; i < notes.size(); ++i) {
        if (notes[i].pitch == notes[index].pitch) { return notes[i].start; }
    }
    return INT_MAX;
}

MidiTrack performPart(const Score& score, const Part& part) {
    MidiTrack track;
    setUpChannel(part, track);
    std::vector<ScoreNote> notes = part.notes;
    std::stable_sort(notes.begin(), notes.end(),
                     [](const ScoreNote& a, const ScoreNote& b) { return a.start < b.start; });
    Random random{static_cast<std::uint32_t>(part.channel + 1)};
    for (std::size_t i = 0; i < notes.size(); ++i) {
        const ScoreNote& note = notes[i];
        const int sounding = std::max(1, static_cast<int>(note.length * part.gate));
        const int start = note.start + note.delay;
        const int end = std::min(note.start + sounding, nextStartOf(notes, i));
        if (end > start) {
            track.note(part.channel, note.pitch, velocityOf(note, random),
                       swingTick(start, score.swing), swingTick(end, score.swing));
        }
    }
    return track;
}

} // namespace

bool writePerformance(const Score& score, const std::filesystem::path& file) {
    std::vector<MidiTrack> tracks{score.conductor};
    for (const Part& part : score.parts) {
        tracks.push_back(performPart(score, part));
    }
    const double ringTicks = score.ring * score.tempo / 60.0 * ticksPerQuarter;
    return writeMidiFile(file, tracks, score.length + static_cast<int>(ringTicks));
}
