// A stereo sound of fixed length.
//
// Make a SoundBuffer, add samples to it, add reverb, master it, write it to a file.
#pragma once

#include <filesystem>
#include <vector>

inline constexpr double sampleRate = 44100.0; // Hz

struct SoundBuffer {
    std::vector<double> left;
    std::vector<double> right;

    // Makes a silent sound of that many seconds.
    explicit SoundBuffer(double seconds);

    // Adds a sample at a place; pan is -1.0 left .. 1.0 right. Samples beyond the end are dropped.
    void add(std::size_t place, double sample, double pan);

    // Adds the reverb of a small bright room; wetness 0.0 .. 1.0 is the level of the first echo.
    void addReverb(double wetness);

    // Removes the offset, fades both ends, and normalizes to the peak, in dB below full scale (a
    // negative number).
    void master(double peakInDecibels, double fadeOutSeconds);

    // Replaces a WAVE file: 16 bits, stereo, uncompressed. Returns false, after a message, when it
    // cannot be written.
    bool writeWave(const std::filesystem::path& file) const;
};
