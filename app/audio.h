// The music: MIDI pieces in rotation while a level is played. (Effects: app/effects.h.)
//
// The sequencer plays in the background and reports the end of a piece to the window as
// MM_MCINOTIFY; rotateMusic then plays the next one. startMusic plays the first piece, and
// the rotation then continues with Game.nextTrack. After a piece that cannot be played there is no
// music until startMusic is called again.
#pragma once

#include "platform/windows_api.h"

// Opens the sequencer on a MIDI file and plays it; `window` gets MM_MCINOTIFY at its end. Returns 0
// or the error code; after an error nothing is open. Does not change Game.musicPlaying.
MCIERROR playMidi(HWND window, const char* fileName);

// Plays the first piece and sets Game.musicPlaying.
void startMusic();

// Closes the sequencer and clears Game.musicPlaying.
void stopMusic();

// Handles the end of a piece: closes it and, if the music is on and a level on the screen, plays
// the next.
void rotateMusic();
