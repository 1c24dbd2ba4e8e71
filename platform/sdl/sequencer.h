// Music on FluidSynth, for platform/common/sequencer.h.
#pragma once

// Closes the piece without a message, and ends the music thread.
void stopSequencer();
