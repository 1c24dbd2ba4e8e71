// The samples that effects and music are rendered to: 16-bit, left and right in turn.
#pragma once

inline constexpr int sampleRate = 44100; // frames a second; a frame has a sample for each channel
inline constexpr int channelCount = 2;
