// The music: three MIDI pieces in rotation while a level is played. (Effects: app/effects.h.)
//
// The machine's sequencer plays in the background and reports the end of a piece as MM_MCINOTIFY,
// at which the next one starts. Every run, and every switching on, begins with the opening piece.
// A piece that cannot be played is passed over in silence, until the music is started again.
#pragma once

#include "platform/windows_api.h"

// Opens the sequencer on a MIDI file and plays it, with the window to be told of its end. Returns 0
// or the error code; after an error nothing is open. Leaves Game.musicPlaying to the caller.
MCIERROR playMidi(HWND window, const char* fileName);

// Plays the opening piece and sets Game.musicPlaying.
void startMusic();

// Closes the sequencer and clears Game.musicPlaying.
void stopMusic();

// A piece has ended: closes it and, if a level is on the screen, plays the next.
void rotateMusic();
