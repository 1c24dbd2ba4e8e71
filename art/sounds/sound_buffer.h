// A stereo sound of fixed length while it is being made, and what is done to a sound as a whole.
//
// Order of use: make a SoundBuffer, add tones to it (tones.h), give it a room with addEchoes, and
// end with finish, which takes care of level, offset and edges.
#pragma once

#include <vector>

constexpr double samplesPerSecond = 44100.0;

struct SoundBuffer {
    std::vector<double> left;
    std::vector<double> right;

    // A silent sound of that many seconds.
    explicit SoundBuffer(double seconds);

    // Adds one sample at a place, spread by pan: -1.0 is left, 0.0 the middle, 1.0 right. Places
    // beyond the end are dropped.
    void add(std::size_t place, double sample, double pan);

    // A small bright room: a handful of echoes that cross between the sides. Wetness 0.0 .. 1.0 is
    // the level of the first one.
    void addEchoes(double wetness);

    // Takes the constant part out, fades both edges to zero so that nothing clicks, and brings the
    // highest sample to the peak, given in dB below full scale (a negative number).
    void finish(double peakInDecibels, double fadeOutSeconds);
};
