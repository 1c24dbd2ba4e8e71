// The instruments of the effects: glass that is struck, and a horn that is blown.
#pragma once

#include "art/sounds/sound_buffer.h"

// A tone's place in the sound.
struct Cue {
    double start;     // seconds from the beginning of the sound
    double pitch;     // MIDI pitch, fractions allowed
    double level;     // 1.0 is the loudest
    double pan = 0.0; // -1.0 left .. 1.0 right
};

// A glass marble or bell: inharmonic partials that die the faster the higher they lie. The ring is
// the time in seconds after which the lowest partial has fallen to half.
void strikeGlass(SoundBuffer& sound, const Cue& cue, double ring);

// The dry knock with which two marbles meet: a few milliseconds of dull noise.
void knock(SoundBuffer& sound, double start, double level);

// A blown tone with soft edges. The bend is added to the pitch over the length of the tone, in
// semitones (slowly first); the brightness 0.0 .. 1.0 is the share of overtones, and the vibrato
// its depth in semitones at the end of the tone.
struct HornShape {
    double length; // seconds
    double brightness;
    double bend = 0.0;
    double vibrato = 0.0;
    double fall = 0.35; // share of the length in which it dies away
};
void blowHorn(SoundBuffer& sound, const Cue& cue, const HornShape& shape);
