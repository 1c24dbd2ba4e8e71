// Files of sounds and music, small enough to be made by the tests.
#pragma once

#include <initializer_list>
#include <string>

constexpr int samplesPerSecond = 44100;

// Numbers of 16 bits, the lower byte first.
inline std::string words(std::initializer_list<int> values) {
    std::string text;
    for (const int value : values) {
        text += {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
    }
    return text;
}

inline std::string zeros(std::size_t count) {
    return std::string(count, '\0');
}

inline std::string chunk(const std::string& tag, const std::string& data) {
    const auto size = static_cast<int>(data.size());
    return tag + words({size, size >> 16}) + data;
}

// A WAVE file of samples that are coded in that way.
inline std::string waveFile(const std::string& format, const std::string& data) {
    return chunk("RIFF", "WAVE" + chunk("fmt ", format) + chunk("data", data));
}

// A WAVE file that holds one level for that long.
inline std::string waveFile(int level, double seconds) {
    constexpr int rate = 4 * samplesPerSecond; // bytes
    std::string data;
    for (int i = 0; i < static_cast<int>(seconds * samplesPerSecond); ++i) {
        data += words({level, level});
    }
    return waveFile(words({1, 2, samplesPerSecond, 0, rate, rate >> 16, 4, 16}), data);
}

// A sound font of one instrument, a steady tone.
inline std::string toneFont() {
    std::string wave;
    for (int i = 0; i < 1000; ++i) {
        wave += words({i % 100 < 50 ? 12000 : -12000});
    }
    const auto sample = words({0, 0, 1000, 0, 100, 0, 900, 0, samplesPerSecond, 0, 60, 0, 1});
    const auto lists = chunk("phdr", zeros(62) + words({1}) + zeros(12)) +
                       chunk("pbag", words({0, 0, 1, 0})) + chunk("pmod", zeros(10)) +
                       chunk("pgen", words({41, 0, 0, 0})) + chunk("inst", zeros(42) + words({1})) +
                       chunk("ibag", words({0, 0, 2, 0})) + chunk("imod", zeros(10)) +
                       chunk("igen", words({54, 1, 53, 0, 0, 0})) +
                       chunk("shdr", zeros(20) + sample + zeros(46));
    return chunk("RIFF", "sfbk" + chunk("LIST", "INFO" + chunk("ifil", words({2, 1}))) +
                             chunk("LIST", "sdta" + chunk("smpl", wave + zeros(92))) +
                             chunk("LIST", "pdta" + lists));
}

// A MIDI file of one track, and one with a note that lasts so long, up to 8 seconds.
inline std::string midiFile(const std::string& events, char ticksPerBeat = 100) {
    const std::string track = events + std::string("\0\xFF\x2F\0", 4);
    return std::string("MThd\0\0\0\6\0\0\0\1\0", 13) + ticksPerBeat + std::string("MTrk\0\0\0", 7) +
           static_cast<char>(track.size()) + track;
}

// `before` is what happens at its start. Ticks of 1 a beat make it a hundred times longer. A note
// whose end has another key sounds on.
inline std::string pieceOf(double seconds, const std::string& before = "", char ticksPerBeat = 100,
                           char keyOfEnd = '\x3C') {
    const int ticks = static_cast<int>(seconds * 200.0); // of 100 a beat, two beats a second
    const std::string wait = {static_cast<char>(0x80 | ticks >> 7),
                              static_cast<char>(ticks & 0x7F)};
    return midiFile(before + std::string("\0\x90\x3C\x7F", 4) + wait + '\x80' + keyOfEnd + '\x40',
                    ticksPerBeat);
}
