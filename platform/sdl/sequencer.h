// MIDI music beside the effects: one piece at a time, and word to the game when it is over.
#pragma once

// Posts MM_MCINOTIFY for a piece that is over, and says on standard error what the music lacks. The
// message queue calls it whenever the game looks for messages.
void updateSequencer();

// Ends the music without a message.
void stopSequencer();
