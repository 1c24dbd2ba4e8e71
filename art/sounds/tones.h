// The instruments of the effects: struck glass, and a horn.
#pragma once

#include "art/sounds/sound_buffer.h"

struct Cue {
    double start;     // seconds from the beginning of the sound
    double pitch;     // MIDI pitch; may lie between two keys
    double level;     // 1.0 is the loudest
    double pan = 0.0; // -1.0 left .. 1.0 right
};

// A glass marble or bell: inharmonic partials, of which higher ones decay faster. The lowest falls
// to half in `halfLife` seconds.
void strikeGlass(SoundBuffer& sound, const Cue& cue, double halfLife);

// The dry knock of two marbles: a few milliseconds of filtered noise.
void knock(SoundBuffer& sound, double start, double level);

struct HornShape {
    double length;        // seconds
    double brightness;    // 0.0 .. 1.0, level of each overtone against the one below it
    double bend = 0.0;    // semitones by which the pitch has changed at the end
    double vibrato = 0.0; // its depth at the end, in semitones
    double fall = 0.35;   // share of the length in which the tone fades out
};

// A blown tone with soft edges.
void blowHorn(SoundBuffer& sound, const Cue& cue, const HornShape& shape);
