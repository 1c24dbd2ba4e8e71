#include "art/sounds/tones.h"

#include "art/common/portable_math.h"
#include "art/common/random.h"

namespace {

struct Partial {
    double ratio;    // of the lowest partial's frequency
    double level;    // of the lowest partial's
    double halfLife; // of the lowest partial's
};

// Between a small glass bowl and a bar: the second and third are close to an octave and a twelfth,
// so that a struck chord is still in tune.
constexpr Partial glass[] = {
    {1.0, 1.0, 1.0},   {2.003, 0.55, 0.62}, {3.011, 0.28, 0.40},
    {5.41, 0.17, 0.2}, {8.93, 0.09, 0.09},
};

std::size_t placeOf(double seconds) {
    return static_cast<std::size_t>(seconds * sampleRate);
}

double timeOf(std::size_t place) {
    return static_cast<double>(place) / sampleRate;
}

// Returns the frequency of a MIDI pitch in equal temperament, in Hz.
double frequencyOf(double pitch) {
    return 440.0 * powerOfTwo((pitch - 69.0) / 12.0);
}

// Rises from 0 to 1 along half a cosine while x does.
double halfCosine(double x) {
    return 0.5 - 0.5 * sineOfTurns(0.25 + 0.5 * clamp01(x));
}

// An envelope that rises in `attack` seconds and falls by half every `halfLife`.
double decay(double time, double attack, double halfLife) {
    return halfCosine(time / attack) * powerOfTwo(-time / halfLife);
}

double hornWave(double phase, double brightness) {
    constexpr int overtones = 8;
    double sum = 0.0;
    double level = 1.0;
    for (int n = 1; n <= overtones; ++n) {
        sum += level * sineOfTurns(n * phase);
        level *= brightness;
    }
    return sum;
}

} // namespace

void strikeGlass(SoundBuffer& sound, const Cue& cue, double halfLife) {
    constexpr double attack = 0.0015;
    constexpr double highest = 0.45 * sampleRate; // just below the Nyquist frequency
    const std::size_t start = placeOf(cue.start);
    for (const Partial& partial : glass) {
        const double frequency = frequencyOf(cue.pitch) * partial.ratio;
        for (std::size_t i = start; i < sound.left.size() && frequency <= highest; ++i) {
            const double time = timeOf(i - start);
            const double envelope = decay(time, attack, halfLife * partial.halfLife);
            const double wave = sineOfTurns(frequency * time);
            sound.add(i, cue.level * partial.level * envelope * wave, cue.pan);
        }
    }
}

void knock(SoundBuffer& sound, double start, double level) {
    constexpr double length = 0.03;
    constexpr double smoothing = 0.55; // of the low pass
    Random random{7};
    double noise = 0.0;
    for (std::size_t i = 0; i < placeOf(length); ++i) {
        noise += (1.0 - smoothing) * (random.next() - noise);
        sound.add(placeOf(start) + i, level * decay(timeOf(i), 0.0004, 0.0018) * noise, 0.0);
    }
}

void blowHorn(SoundBuffer& sound, const Cue& cue, const HornShape& shape) {
    constexpr double rise = 0.02;
    constexpr double vibratoFrequency = 5.5; // Hz
    double phase = 0.0;
    for (std::size_t i = 0; i < placeOf(shape.length); ++i) {
        const double time = timeOf(i);
        const double share = time / shape.length;
        const double loudness = halfCosine(time / rise) *
                                halfCosine((shape.length - time) / (shape.length * shape.fall));
        const double wave = hornWave(phase, shape.brightness * (0.6 + 0.4 * loudness));
        sound.add(placeOf(cue.start) + i, cue.level * loudness * wave, cue.pan);
        const double vibrato = shape.vibrato * share * sineOfTurns(vibratoFrequency * time);
        phase += frequencyOf(cue.pitch + shape.bend * share * share + vibrato) / sampleRate;
    }
}
