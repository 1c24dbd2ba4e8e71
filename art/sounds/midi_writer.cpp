#include "art/sounds/midi_writer.h"

#include "art/sounds/file_bytes.h"

#include <algorithm>
#include <cmath>

namespace {

// Order among the events of one tick.
constexpr int noteEndRank = 0, settingRank = 1, noteRank = 2;

constexpr std::uint8_t tempoType = 0x51, timeSignatureType = 0x58, keySignatureType = 0x59;
constexpr std::uint8_t endOfTrackType = 0x2f;

char byteOf(int value) {
    return static_cast<char>(value & 0xff);
}

// Seven bits a byte, the most significant first; all but the last have the top bit set.
std::string variableLength(std::uint32_t number) {
    std::string bytes(1, byteOf(number & 0x7f));
    while ((number >>= 7) != 0)
        bytes.insert(bytes.begin(), byteOf(0x80 | (number & 0x7f)));
    return bytes;
}

std::string metaEvent(std::uint8_t type, const std::string& data) {
    return std::string{byteOf(0xff), byteOf(type)} +
           variableLength(static_cast<std::uint32_t>(data.size())) + data;
}

std::string trackBytes(const MidiTrack& track, int lastTick) {
    std::vector<MidiTrack::Event> events = track.events;
    events.push_back({lastTick, noteRank + 1, metaEvent(endOfTrackType, "")});
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
    events.push_back({tick, settingRank, metaEvent(static_cast<std::uint8_t>(kind), words)});
}

void MidiTrack::tempo(int tick, double quartersPerMinute) {
    FileBytes data;
    data.bigEndian(static_cast<std::uint32_t>(std::lround(60e6 / quartersPerMinute)), 3);
    events.push_back({tick, settingRank, metaEvent(tempoType, data.bytes)});
}

void MidiTrack::timeSignature(int beatsPerBar) {
    constexpr int quarterAsPowerOfTwo = 2, clocksPerClick = 24, thirtySecondsPerQuarter = 8;
    const std::string data{byteOf(beatsPerBar), byteOf(quarterAsPowerOfTwo), byteOf(clocksPerClick),
                           byteOf(thirtySecondsPerQuarter)};
    events.push_back({0, settingRank, metaEvent(timeSignatureType, data)});
}

void MidiTrack::keySignature(int sharps, bool minor) {
    const std::string data{byteOf(sharps), byteOf(minor ? 1 : 0)};
    events.push_back({0, settingRank, metaEvent(keySignatureType, data)});
}

void MidiTrack::program(int channel, int number) {
    events.push_back({0, settingRank, {byteOf(0xc0 | channel), byteOf(number)}});
}

void MidiTrack::control(int channel, int controller, int value) {
    events.push_back({0, settingRank, {byteOf(0xb0 | channel), byteOf(controller), byteOf(value)}});
}

void MidiTrack::note(int channel, int pitch, int velocity, int start, int end) {
    constexpr int releaseVelocity = 64;
    events.push_back({start, noteRank, {byteOf(0x90 | channel), byteOf(pitch), byteOf(velocity)}});
    events.push_back(
        {end, noteEndRank, {byteOf(0x80 | channel), byteOf(pitch), byteOf(releaseVelocity)}});
}

bool writeMidiFile(const std::filesystem::path& path, const std::vector<MidiTrack>& tracks,
                   int ticksInQuarter, int lastTick) {
    constexpr std::uint32_t simultaneousTracks = 1;
    FileBytes file;
    file.text("MThd");
    file.bigEndian(6, 4);
    file.bigEndian(simultaneousTracks, 2);
    file.bigEndian(static_cast<std::uint32_t>(tracks.size()), 2);
    file.bigEndian(static_cast<std::uint32_t>(ticksInQuarter), 2);
    for (const MidiTrack& track : tracks) {
        const std::string bytes = trackBytes(track, lastTick);
        file.text("MTrk");
        file.bigEndian(static_cast<std::uint32_t>(bytes.size()), 4);
        file.text(bytes);
    }
    return file.writeTo(path);
}
