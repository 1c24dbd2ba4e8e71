#include "art/sounds/sound_buffer.h"

#include "art/sounds/exact_math.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

struct Echo {
    double delay; // seconds
    double level; // share of the wetness
    bool crossed; // heard on the other side
};

// Delays without a common measure, so that the echoes do not add up to a tone of their own.
constexpr Echo room[] = {
    {0.0191, 1.00, true}, {0.0313, 0.83, false}, {0.0437, 0.71, true}, {0.0599, 0.58, false},
    {0.0787, 0.47, true}, {0.1031, 0.36, false}, {0.1327, 0.27, true}, {0.1693, 0.19, false},
};

// Cuts what lies below the range of a small loudspeaker, and with it every constant part: a
// first-order high pass at about 30 Hz.
void removeOffset(std::vector<double>& samples) {
    constexpr double keep = 1.0 - 2.0 * std::numbers::pi * 30.0 / samplesPerSecond;
    double before = 0.0;
    double out = 0.0;
    for (double& sample : samples) {
        out = keep * (out + sample - before);
        before = sample;
        sample = out;
    }
}

// Ramps shaped like half a cosine: no corner at either end.
void fadeEdges(std::vector<double>& samples, double fadeOutSeconds) {
    constexpr double fadeInSeconds = 0.001;
    const auto count = static_cast<double>(samples.size() - 1);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const auto place = static_cast<double>(i);
        const double in = std::min(1.0, place / (fadeInSeconds * samplesPerSecond));
        const double out = std::min(1.0, (count - place) / (fadeOutSeconds * samplesPerSecond));
        const double gain = std::min(in, out);
        samples[i] *= 0.5 - 0.5 * sineOfTurns(0.25 + 0.5 * gain);
    }
}

double highestOf(const std::vector<double>& samples) {
    double highest = 0.0;
    for (const double sample : samples)
        highest = std::max(highest, std::abs(sample));
    return highest;
}

} // namespace

SoundBuffer::SoundBuffer(double seconds)
    : left(static_cast<std::size_t>(seconds * samplesPerSecond)), right(left.size()) {}

void SoundBuffer::add(std::size_t place, double sample, double pan) {
    if (place >= left.size()) return;
    left[place] += sample * std::sqrt(0.5 - 0.5 * pan);
    right[place] += sample * std::sqrt(0.5 + 0.5 * pan);
}

void SoundBuffer::addEchoes(double wetness) {
    const std::vector<double> dryLeft = left;
    const std::vector<double> dryRight = right;
    for (const Echo& echo : room) {
        const auto delay = static_cast<std::size_t>(echo.delay * samplesPerSecond);
        for (std::size_t i = delay; i < left.size(); ++i) {
            left[i] += wetness * echo.level * (echo.crossed ? dryRight : dryLeft)[i - delay];
            right[i] += wetness * echo.level * (echo.crossed ? dryLeft : dryRight)[i - delay];
        }
    }
}

void SoundBuffer::finish(double peakInDecibels, double fadeOutSeconds) {
    for (std::vector<double>* side : {&left, &right}) {
        removeOffset(*side);
        fadeEdges(*side, fadeOutSeconds);
    }
    constexpr double decibelsPerDoubling = 6.020599913;
    const double peak = powerOfTwo(peakInDecibels / decibelsPerDoubling);
    const double gain = peak / std::max(highestOf(left), highestOf(right));
    for (std::vector<double>* side : {&left, &right})
        for (double& sample : *side)
            sample *= gain;
}
