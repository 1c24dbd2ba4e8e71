// The mixer, which effects and music share. Effects have one channel: a new one cuts off the last.
#pragma once

// Opens the audio device at the first call. Returns false, after one line on standard error, where
// there is none; it is not tried again.
bool startSound();

// Releases every loaded effect and the device.
void stopSound();
