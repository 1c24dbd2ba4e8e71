// The audio device and the effects. Effects share one channel of the mixer, so a new one cuts off
// the one before; the music (music_stream.h) has its own. Call everything on the game's thread.
#pragma once

// Opens the audio device at the first call; later calls return the first result. Returns false,
// after one line on standard error, when there is no device.
bool startSound();

// Releases the effects that were loaded, and closes the device. A later startSound opens it again.
void stopSound();
