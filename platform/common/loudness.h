// The loudness of music, effects and beep, and the sound of the beep: the same on the desktop and
// in a browser. Effects are heard above the music. The loudest moment of the pieces and that of the
// effects do not clip together.
//
// The build of the page reads musicGain from this file.
#pragma once

constexpr double musicGain = 0.475;    // of FluidSynth
constexpr double effectVolume = 0.797; // of the loudest possible: 2 dB below the files

constexpr double beepFrequency = 880.0; // hertz
constexpr double beepLength = 0.15;     // seconds
constexpr double beepAttack = 0.005;    // seconds; a shorter one clicks
constexpr double beepVolume = 0.3;      // of an effect as loud as possible
