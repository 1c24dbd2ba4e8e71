// The music: MIDI pieces in rotation while a level is played. (Effects: app/effects.h.)
//
// The sequencer plays in the background and posts MM_MCINOTIFY to the window at the end of a piece;
// rotateMusic then plays the next one. The same message follows when a playing piece is closed:
// Game.musicPlaying is clear by then, and nothing is played. startMusic plays the first piece, and
// the rotation then continues with Game.nextTrack. After a piece that cannot be played there is no
// music until startMusic is called again.
#pragma once

#include "platform/windows_api.h"

// Opens the sequencer on a MIDI file and plays it; `window` gets MM_MCINOTIFY. Returns 0 or the
// error code; after an error nothing is open. Does not change Game.musicPlaying.
MCIERROR playMidi(HWND window, const char* fileName);

// Plays the first piece and sets Game.musicPlaying.
void startMusic();

// Closes the sequencer and clears Game.musicPlaying.
void stopMusic();

// Handles MM_MCINOTIFY: closes the piece and, if Game.musicPlaying is set and a level on the
// screen, plays the next.
void rotateMusic();
