// The four sound effects of the game, ready to be written. They are equally loud.
#pragma once

#include "art/sounds/sound_buffer.h"

// A step in the menu, a typed letter: the tick of a glass marble, a tenth of a second.
SoundBuffer menuTick();

// The marble is free: a leap upwards into a bright open chord.
SoundBuffer startSignal();

// The time is over: three falling tones, of which the last one slides down.
SoundBuffer timeUp();

// The goal is reached: glass bells play a rising chord that rings on.
SoundBuffer goalReached();
