// The four effects of the game, each of which tells without a look what has happened.
//
// All are finished sounds: they begin and end at zero and are of matching loudness.
#pragma once

#include "art/sounds/sound_buffer.h"

// A step in the menu, a typed letter: the tick of a glass marble. A tenth of a second, because it
// follows the fingers.
SoundBuffer menuTick();

// The marble may roll: a leap upwards into a bright open chord.
SoundBuffer startSignal();

// The time is over: three falling tones, the last of which sinks.
SoundBuffer timeUp();

// The goal is reached: glass bells run up a chord and let it ring.
SoundBuffer goalReached();
