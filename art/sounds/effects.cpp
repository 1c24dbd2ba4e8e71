#include "art/sounds/effects.h"

#include "art/sounds/tones.h"

namespace {

constexpr double peakInDecibels = -3.0;
// A blown tone sounds louder than a struck one of the same peak; this makes them equal.
constexpr double blownPeakInDecibels = -6.5;

// MIDI pitches by name; a4 is 440 Hz.
constexpr double d4 = 62, f4 = 65, a4 = 69, d5 = 74, fSharp5 = 78, a5 = 81, d6 = 86, fSharp6 = 90;
constexpr double a6 = 93, d7 = 98;

} // namespace

SoundBuffer menuTick() {
    SoundBuffer sound(0.11);
    knock(sound, 0.0, 0.9);
    strikeGlass(sound, {0.0, 97.3, 1.0, -0.1}, 0.011);
    strikeGlass(sound, {0.047, 97.9, 0.3, 0.15}, 0.008);
    sound.master(peakInDecibels, 0.03);
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
