#include "art/sounds/effects.h"

#include "art/common/portable_math.h"
#include "art/common/random.h"

namespace {

constexpr double peakInDecibels = -3.0;
// A blown tone sounds louder than a struck one of the same peak; this makes them equal.
constexpr double blownPeakInDecibels = -6.5;
constexpr double tickPeakInDecibels = -8.0; // the menu's tick is heard most often

// MIDI pitches by name; a4 is 440 Hz.
constexpr double d4 = 62, f4 = 65, a4 = 69, d5 = 74, fSharp5 = 78, a5 = 81, d6 = 86, fSharp6 = 90;
constexpr double a6 = 93, d7 = 98;

struct Cue {
    double start;     // seconds from the beginning of the sound
    double pitch;     // MIDI pitch; may lie between two keys
    double level;     // 1.0 is the loudest
    double pan = 0.0; // -1.0 left .. 1.0 right
};

struct HornShape {
    double length;        // seconds
    double brightness;    // 0.0 .. 1.0, level of each overtone against the one below it
    double bend = 0.0;    // change of the pitch at the end, in semitones
    double vibrato = 0.0; // its depth at the end, in semitones
    double fall = 0.35;   // share of the length in which the tone fades out
};

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

// Returns half a cosine that rises from 0 to 1 while x does.
double halfCosine(double x) {
    return 0.5 - 0.5 * sineOfTurns(0.25 + 0.5 * clamp01(x));
}

// Returns an envelope that rises in `attack` seconds and falls by half every `halfLife`.
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

// A glass marble or bell: inharmonic partials, of which higher ones decay faster. The lowest falls
// to half in `halfLife` seconds.
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

// The dry knock of two marbles: a few milliseconds of filtered noise.
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

// A blown tone with soft edges.
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

} // namespace

SoundBuffer menuTick() {
    SoundBuffer sound(0.11);
    knock(sound, 0.0, 0.4);
    strikeGlass(sound, {0.0, 83.3, 1.0, -0.1}, 0.014);
    strikeGlass(sound, {0.047, 83.9, 0.3, 0.15}, 0.010);
    sound.master(tickPeakInDecibels, 0.03);
    return sound;
}

SoundBuffer startSignal() {
    SoundBuffer sound(0.95);
    blowHorn(sound, {0.0, a4, 0.75}, {0.13, 0.5});
    blowHorn(sound, {0.12, d5, 0.75, -0.3}, {0.7, 0.55});
    blowHorn(sound, {0.12, a5, 0.6, 0.3}, {0.7, 0.5});
    strikeGlass(sound, {0.12, d6, 0.5}, 0.14);
    strikeGlass(sound, {0.12, d7, 0.2}, 0.1);
    sound.addReverb(0.3);
    sound.master(peakInDecibels, 0.2);
    return sound;
}

SoundBuffer timeUp() {
    SoundBuffer sound(1.45);
    blowHorn(sound, {0.0, a4, 0.8, -0.2}, {0.28, 0.5, -0.5, 0.0, 0.7});
    blowHorn(sound, {0.25, f4, 0.8, 0.2}, {0.28, 0.5, -0.5, 0.0, 0.7});
    blowHorn(sound, {0.50, d4, 0.9}, {0.9, 0.55, -3.0, 0.5, 0.8});
    sound.addReverb(0.25);
    sound.master(blownPeakInDecibels, 0.2);
    return sound;
}

SoundBuffer goalReached() {
    SoundBuffer sound(1.45);
    strikeGlass(sound, {0.00, d5, 0.7, -0.5}, 0.15);
    strikeGlass(sound, {0.09, fSharp5, 0.7, -0.2}, 0.15);
    strikeGlass(sound, {0.18, a5, 0.75, 0.2}, 0.15);
    strikeGlass(sound, {0.27, d6, 0.9, 0.4}, 0.2);
    strikeGlass(sound, {0.42, fSharp6, 0.5, -0.2}, 0.3);
    strikeGlass(sound, {0.42, a5, 0.5, 0.2}, 0.3);
    strikeGlass(sound, {0.42, d5, 0.5}, 0.3);
    strikeGlass(sound, {0.48, a6, 0.4, 0.3}, 0.25);
    sound.addReverb(0.3);
    sound.master(peakInDecibels, 0.3);
    return sound;
}
