#include "art/sounds/midi_writer.h"

#include <algorithm>
#include <cmath>

#include "art/common/byte_writer.h"

namespace {

// Order among the events of one tick.
constexpr int noteOffRank = 0;
constexpr int metaRank = 1;
constexpr int noteOnRank = 2;
constexpr int endRank = 3;

std::string byte(int value) {
    return std::string(1, static_cast<char>(value));
}

// Returns seven bits a byte, the most significant first; all but the last have the top bit set.
std::string variableLength(std::uint32_t number) {
    std::string bytes = byte(number & 0x7f);
    while ((number >>= 7) != 0) {
        bytes.insert(0, byte(0x80 | (number & 0x7f)));
    }
    return bytes;
}

std::string metaEvent(int type, const std::string& data) {
    return byte(0xff) + byte(type) + variableLength(static_cast<std::uint32_t>(data.size())) + data;
}

std::string trackBytes(const MidiTrack& track, int lastTick) {
    constexpr int endOfTrack = 0x2f;
    std::vector<MidiTrack::Event> events = track.events;
    events.push_back({lastTick, endRank, metaEvent(endOfTrack, "")});
    std::stable_sort(events.begin(), events.end(), [](const auto& a, const auto& b) {
        return a.tick != b.tick ? a.tick < b.tick : a.rank < b.rank;
    });
    std::string bytes;
    int now = 0;
    for (const MidiTrack::Event& event : events) {
        bytes += variableLength(static_cast<std::uint32_t>(event.tick - now)) + event.bytes;
        now = event.tick;
    }
    return bytes;
}

} // namespace

void MidiTrack::text(int tick, MidiText kind, const std::string& words) {
    events.push_back({tick, metaRank, metaEvent(static_cast<int>(kind), words)});
}

void MidiTrack::tempo(int tick, double quartersPerMinute) {
    const auto microsecondsPerQuarter =
        static_cast<std::uint32_t>(std::lround(60e6 / quartersPerMinute));
    ByteWriter data;
    data.bigEndian(microsecondsPerQuarter, 3);
    events.push_back({tick, metaRank, metaEvent(0x51, data.bytes)});
}

void MidiTrack::signatures(int sharps, bool minor) {
    constexpr int quartersPerBar = 4;
    constexpr int quarterAsPowerOfTwo = 2;
    constexpr int clocksPerClick = 24;
    constexpr int thirtySecondsPerQuarter = 8;
    events.push_back({0, metaRank,
                      metaEvent(0x58, byte(quartersPerBar) + byte(quarterAsPowerOfTwo) +
                                          byte(clocksPerClick) + byte(thirtySecondsPerQuarter))});
    events.push_back({0, metaRank, metaEvent(0x59, byte(sharps) + byte(minor ? 1 : 0))});
}

void MidiTrack::programChange(int channel, int program) {
    events.push_back({0, metaRank, byte(0xc0 | channel) + byte(program)});
}

void MidiTrack::controlChange(int channel, int controller, int value) {
    events.push_back({0, metaRank, byte(0xb0 | channel) + byte(controller) + byte(value)});
}

void MidiTrack::note(int channel, int pitch, int velocity, int start, int end) {
    constexpr int releaseVelocity = 64;
    events.push_back({start, noteOnRank, byte(0x90 | channel) + byte(pitch) + byte(velocity)});
    events.push_back(
        {end, noteOffRank, byte(0x80 | channel) + byte(pitch) + byte(releaseVelocity)});
}

bool writeMidiFile(const std::filesystem::path& file, const std::vector<MidiTrack>& tracks,
                   int lastTick) {
    ByteWriter out;
    out.text("MThd");
    out.bigEndian(6, 4);
    out.bigEndian(1, 2); // the tracks are played together
    out.bigEndian(static_cast<std::uint32_t>(tracks.size()), 2);
    out.bigEndian(ticksPerQuarter, 2);
    for (const MidiTrack& track : tracks) {
        const std::string bytes = trackBytes(track, lastTick);
        out.text("MTrk");
        out.bigEndian(static_cast<std::uint32_t>(bytes.size()), 4);
        out.text(bytes);
    }
    return out.writeTo(file);
}
