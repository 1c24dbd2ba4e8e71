#include "platform/sdl/midi_file.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::uint32_t headerTag = 0x4D546864; // "MThd"
constexpr std::uint32_t trackTag = 0x4D54726B;  // "MTrk"
constexpr std::uint8_t metaEvent = 0xFF;
constexpr std::uint8_t endOfTrack = 0x2F;
constexpr std::uint8_t setTempo = 0x51;
constexpr std::uint32_t usualBeat = 500000; // microseconds a beat until a tempo is set

struct Tempo {
    std::uint64_t tick;
    std::uint32_t beat; // microseconds a beat from that tick on
};

// Takes numbers off the front of some bytes; `good` is false once they ran out.
struct Reader {
    Bytes rest;
    bool good = true;

    Bytes take(std::size_t count) {
        good = good && count <= rest.size();
        if (!good) return {};
        const Bytes taken = rest.first(count);
        rest = rest.subspan(count);
        return taken;
    }

    // A number of `count` bytes, the highest first.
    std::uint32_t number(std::size_t count) {
        std::uint32_t value = 0;
        for (const std::uint8_t byte : take(count))
            value = value << 8 | byte;
        return value;
    }

    // A number in groups of seven bits, at most four of them.
    std::uint32_t groups() {
        std::uint32_t value = 0;
        for (int i = 0; i < 4 && good; ++i) {
            const std::uint32_t byte = number(1);
            value = value << 7 | (byte & 0x7F);
            if (byte < 0x80) return value;
        }
        good = false;
        return 0;
    }
};

struct Track {
    Reader events;
    std::uint64_t tick = 0;
    std::uint8_t running = 0; // the status that an event without one repeats
    bool ended = false;

    void readMeta(std::vector<Tempo>& tempos) {
        const auto kind = static_cast<std::uint8_t>(events.number(1));
        Reader data = {events.take(events.groups())};
        ended = kind == endOfTrack;
        if (kind == setTempo) tempos.push_back({tick, data.number(3)});
        events.good = events.good && data.good;
    }

    // Notes and controls carry two bytes, changes of program and pressure one; all below 0x80.
    void readVoice() {
        const int kind = running >> 4;
        const Bytes data = events.take(kind == 0xC || kind == 0xD ? 1 : 2);
        for (const std::uint8_t byte : data)
            if (byte >= 0x80) events.good = false;
    }

    void readEvent(std::vector<Tempo>& tempos) {
        tick += events.groups();
        const bool hasStatus = !events.rest.empty() && events.rest.front() >= 0x80;
        const auto status = hasStatus ? static_cast<std::uint8_t>(events.number(1)) : running;
        running = status < 0xF0 ? status : std::uint8_t{0};
        if (status == metaEvent)
            readMeta(tempos);
        else if (status == 0xF0 || status == 0xF7)
            events.take(events.groups());
        else if (status >= 0x80 && status < 0xF0)
            readVoice();
        else
            events.good = false;
    }

    bool read(std::vector<Tempo>& tempos) {
        while (events.good && !ended)
            readEvent(tempos);
        return events.good;
    }
};

struct Header {
    std::uint32_t trackCount = 0;
    std::uint32_t ticksPerBeat = 0;
};

std::optional<Header> readHeader(Reader& file) {
    if (file.number(4) != headerTag) return {};
    Reader header = {file.take(file.number(4))};
    const std::uint32_t format = header.number(2);
    const std::uint32_t tracks = header.number(2);
    const std::uint32_t division = header.number(2);
    const bool countsBeats = division > 0 && division < 0x8000;
    if (!file.good || !header.good || format > 1 || tracks == 0 || !countsBeats) return {};
    return Header{tracks, division};
}

// Reads that many tracks, past chunks of other kinds, and gives the last tick of all.
std::optional<std::uint64_t> readTracks(Reader& file, std::uint32_t count,
                                        std::vector<Tempo>& tempos) {
    std::uint64_t last = 0;
    while (count > 0) {
        const bool isTrack = file.number(4) == trackTag;
        Track track = {{file.take(file.number(4))}};
        if (!file.good || (isTrack && !track.read(tempos))) return {};
        last = std::max(last, track.tick);
        if (isTrack) --count;
    }
    return last;
}

double secondsUntil(std::uint64_t last, std::vector<Tempo>& tempos, double ticksPerBeat) {
    std::stable_sort(tempos.begin(), tempos.end(),
                     [](const Tempo& a, const Tempo& b) { return a.tick < b.tick; });
    double microseconds = 0.0;
    Tempo now = {0, usualBeat};
    for (const Tempo& next : tempos) {
        microseconds += static_cast<double>(next.tick - now.tick) * now.beat / ticksPerBeat;
        now = next;
    }
    microseconds += static_cast<double>(last - now.tick) * now.beat / ticksPerBeat;
    return microseconds / 1e6;
}

} // namespace

std::optional<double> midiSeconds(Bytes bytes) {
    Reader file = {bytes};
    const std::optional<Header> header = readHeader(file);
    if (!header) return {};
    std::vector<Tempo> tempos;
    const std::optional<std::uint64_t> last = readTracks(file, header->trackCount, tempos);
    if (!last) return {};
    const double seconds = secondsUntil(*last, tempos, header->ticksPerBeat);
    return seconds > 0.0 ? std::optional(seconds) : std::nullopt;
}
