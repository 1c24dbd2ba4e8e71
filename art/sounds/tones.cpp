#include "art/sounds/tones.h"

#include "art/sounds/envelope.h"
#include "art/sounds/exact_math.h"

namespace {

struct Partial {
    double ratio; // of the lowest partial's frequency
    double level;
    double life; // share of the lowest partial's ring
};

// Between a small glass bowl and a bar: the second and third lie near an octave and a twelfth, so
// that a struck chord still sounds in tune.
constexpr Partial glass[] = {
    {1.0, 1.0, 1.0},   {2.003, 0.55, 0.62}, {3.011, 0.28, 0.40},
    {5.41, 0.17, 0.2}, {8.93, 0.09, 0.09},
};

constexpr int hornOvertones = 8;
constexpr double vibratoPerSecond = 5.5;

std::size_t placeOf(double seconds) {
    return static_cast<std::size_t>(seconds * samplesPerSecond);
}

// One sample of the horn's wave at a phase in turns: overtones that weaken evenly.
double hornWave(double phase, double brightness) {
    double sum = 0.0;
    double level = 1.0;
    for (int n = 1; n <= hornOvertones; ++n) {
        sum += level * sineOfTurns(n * phase);
        level *= brightness;
    }
    return sum;
}

} // namespace

void strikeGlass(SoundBuffer& sound, const Cue& cue, double ring) {
    constexpr double attack = 0.0015;
    constexpr double nyquist = samplesPerSecond / 2.0;
    const std::size_t start = placeOf(cue.start);
    for (const Partial& partial : glass) {
        const double frequency = frequencyOf(cue.pitch) * partial.ratio;
        if (frequency > 0.9 * nyquist) continue;
        const Decay decay{attack, ring * partial.life};
        for (std::size_t i = start; i < sound.left.size(); ++i) {
            const double time = static_cast<double>(i - start) / samplesPerSecond;
            const double wave = sineOfTurns(frequency * time);
            sound.add(i, cue.level * partial.level * decay.at(time) * wave, cue.pan);
        }
    }
}

void knock(SoundBuffer& sound, double start, double level) {
    constexpr double length = 0.03;
    constexpr double dullness = 0.55;
    const Decay decay{0.0004, 0.0018};
    Dice dice{7};
    double smoothed = 0.0;
    for (std::size_t i = 0; i < placeOf(length); ++i) {
        smoothed += (1.0 - dullness) * (dice.next() - smoothed);
        const double time = static_cast<double>(i) / samplesPerSecond;
        sound.add(placeOf(start) + i, level * decay.at(time) * smoothed, 0.0);
    }
}

void blowHorn(SoundBuffer& sound, const Cue& cue, const HornShape& shape) {
    const Swell swell{0.02, shape.length * shape.fall, shape.length};
    const std::size_t start = placeOf(cue.start);
    double phase = 0.0;
    for (std::size_t i = 0; i < placeOf(shape.length); ++i) {
        const double time = static_cast<double>(i) / samplesPerSecond;
        const double share = time / shape.length;
        const double wobble = shape.vibrato * share * sineOfTurns(vibratoPerSecond * time);
        const double loudness = swell.at(time);
        const double wave = hornWave(phase, shape.brightness * (0.6 + 0.4 * loudness));
        sound.add(start + i, cue.level * loudness * wave, cue.pan);
        phase += frequencyOf(cue.pitch + shape.bend * share * share + wobble) / samplesPerSecond;
    }
}
