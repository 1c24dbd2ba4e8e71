// Arithmetic that gives the same bits on every machine.
//
// The sounds are compared byte for byte with the ones in the repository, and the sine of one C
// library differs from that of the next in its last bit. These functions use nothing but IEEE
// additions and multiplications, so they differ nowhere.
#pragma once

#include <cstdint>

// Sine of an angle given in turns (1.0 is the full circle), exact to about 1e-9. Any finite angle.
double sineOfTurns(double turns);

// Two to the power of the exponent, which may be negative or broken; exact to about 1e-12.
double powerOfTwo(double exponent);

// Frequency in Hz of a MIDI pitch in equal temperament; 69 is the a' of 440 Hz, and fractions of a
// semitone are welcome.
double frequencyOf(double midiPitch);

// A source of small irregularities that are always the same: the numbers follow from the seed.
struct Dice {
    std::uint32_t state = 1;

    // The next number, evenly spread over -1.0 .. 1.0.
    double next();
};
