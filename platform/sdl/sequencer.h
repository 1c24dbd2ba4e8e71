// The MIDI sequencer: mciSendCommandA in sequencer.cpp opens, plays and closes one piece at a time.
#pragma once

// Posts MM_MCINOTIFY when the piece has ended, and writes errors of the music thread on standard
// error. PeekMessageA calls it every time.
void updateSequencer();

// Closes the piece without a message, and ends the music thread.
void stopSequencer();
