// Writes a finished sound as a WAVE file: 44.1 kHz, 16 bit, stereo, uncompressed.
#pragma once

#include "art/sounds/sound_buffer.h"

#include <filesystem>

// Samples beyond -1.0 .. 1.0 are held at the limit. False when the file cannot be written.
bool writeWaveFile(const std::filesystem::path& path, const SoundBuffer& sound);
