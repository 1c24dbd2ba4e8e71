#include "art/sounds/sound_buffer.h"

#include <algorithm>
#include <cmath>

#include "art/common/byte_writer.h"
#include "art/common/portable_math.h"

namespace {

struct Echo {
    double delay; // seconds
    double level; // of the wetness
    bool crossed; // to the other side
};

// Delays without a common divisor, so that the echoes do not add up to a tone.
constexpr Echo room[] = {
    {0.0191, 1.00, true}, {0.0313, 0.83, false}, {0.0437, 0.71, true}, {0.0599, 0.58, false},
    {0.0787, 0.47, true}, {0.1031, 0.36, false}, {0.1327, 0.27, true}, {0.1693, 0.19, false},
};

// A first-order high pass at 30 Hz, which also removes the offset.
void highPass(std::vector<double>& samples) {
    constexpr double keep = 1.0 - 2.0 * pi * 30.0 / sampleRate;
    double before = 0.0;
    double out = 0.0;
    for (double& sample : samples) {
        out = keep * (out + sample - before);
        before = sample;
        sample = out;
    }
}

// Fades both ends along half a cosine.
void fadeEnds(std::vector<double>& samples, double fadeOutSeconds) {
    constexpr double fadeInSeconds = 0.001;
    const auto last = static_cast<double>(samples.size() - 1);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const auto place = static_cast<double>(i);
        const double in = place / (fadeInSeconds * sampleRate);
        const double out = (last - place) / (fadeOutSeconds * sampleRate);
        const double gain = std::min({1.0, in, out});
        samples[i] *= 0.5 - 0.5 * sineOfTurns(0.25 + 0.5 * gain);
    }
}

std::uint32_t toInt16(double sample) {
    const double scaled = std::floor(std::clamp(sample, -1.0, 1.0) * 32767.0 + 0.5);
    return static_cast<std::uint32_t>(static_cast<int>(scaled));
}

} // namespace

SoundBuffer::SoundBuffer(double seconds)
    : left(static_cast<std::size_t>(seconds * sampleRate)), right(left.size()) {}

void SoundBuffer::add(std::size_t place, double sample, double pan) {
    if (place < left.size()) {
        left[place] += sample * std::sqrt(0.5 - 0.5 * pan);
        right[place] += sample * std::sqrt(0.5 + 0.5 * pan);
    }
}

void SoundBuffer::addReverb(double wetness) {
    const std::vector<double> dryLeft = left;
    const std::vector<double> dryRight = right;
    for (const Echo& echo : room) {
        const auto delay = static_cast<std::size_t>(echo.delay * sampleRate);
        for (std::size_t i = delay; i < left.size(); ++i) {
            left[i] += wetness * echo.level * (echo.crossed ? dryRight : dryLeft)[i - delay];
            right[i] += wetness * echo.level * (echo.crossed ? dryLeft : dryRight)[i - delay];
        }
    }
}

void SoundBuffer::master(double peakInDecibels, double fadeOutSeconds) {
    constexpr double decibelsPerDoubling = 6.020599913;
    double highest = 0.0;
    for (std::vector<double>* side : {&left, &right}) {
        highPass(*side);
        fadeEnds(*side, fadeOutSeconds);
        for (const double sample : *side) {
            highest = std::max(highest, std::abs(sample));
        }
    }
    const double gain = powerOfTwo(peakInDecibels / decibelsPerDoubling) / highest;
    for (std::vector<double>* side : {&left, &right}) {
        for (double& sample : *side) {
            sample *= gain;
        }
    }
}

bool SoundBuffer::writeWave(const std::filesystem::path& file) const {
    constexpr std::uint32_t channels = 2;
    constexpr std::uint32_t frameBytes = channels * 2;
    constexpr auto rate = static_cast<std::uint32_t>(sampleRate);
    const auto dataBytes = static_cast<std::uint32_t>(left.size()) * frameBytes;
    ByteWriter out;
    out.text("RIFF");
    out.littleEndian(36 + dataBytes, 4);
    out.text("WAVEfmt ");
    out.littleEndian(16, 4); // bytes of the format
    out.littleEndian(1, 2);  // uncompressed
    out.littleEndian(channels, 2);
    out.littleEndian(rate, 4);
    out.littleEndian(rate * frameBytes, 4);
    out.littleEndian(frameBytes, 2);
    out.littleEndian(16, 2); // bits of a sample
    out.text("data");
    out.littleEndian(dataBytes, 4);
    for (std::size_t i = 0; i < left.size(); ++i) {
        out.littleEndian(toInt16(left[i]), 2);
        out.littleEndian(toInt16(right[i]), 2);
    }
    return out.writeTo(file);
}
