// Reads a standard MIDI file as far as needed to tell music from junk and to know its length.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

// The length of the piece in seconds: the last end of a track, under all tempo changes of all
// tracks. None when the file is not complete and well-formed to the end of each track, or its time
// is not counted in beats (format 0 or 1), or the piece has no length at all.
std::optional<double> midiSeconds(std::span<const std::uint8_t> file);
