// The MIDI sequencer: mciSendCommandA in sequencer.cpp opens, plays and closes one piece at a time.
#pragma once

// Closes the piece without a message, and ends the music thread.
void stopSequencer();
