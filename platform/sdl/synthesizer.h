// Renders MIDI files to samples with FluidSynth. Each synthesizer belongs to one thread at a time.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include <fluidsynth.h>

struct FluidDeleter {
    void operator()(fluid_settings_t* settings) const { delete_fluid_settings(settings); }
    void operator()(fluid_synth_t* synth) const { delete_fluid_synth(synth); }
    void operator()(fluid_player_t* player) const { delete_fluid_player(player); }
};

// Returns true when the bytes are a complete MIDI file with at least one event and a length of one
// tick to one hour. Takes some milliseconds. Also turns FluidSynth's own log off, so call it on the
// game's thread before the first synthesizer is used.
bool isPlayableMidi(std::span<const std::uint8_t> file);

struct Synthesizer {
    // Starts the synthesizer with the first font that can be read. The samples of an instrument are
    // loaded when a piece selects it. Calls `report` with one line for each font that cannot be
    // read. Returns false when that is all of them, or when there is no memory.
    bool loadSoundFont(std::span<const std::string> fonts, void (*report)(const std::string&));
    bool hasSoundFont() const { return synth != nullptr; }

    // Starts a piece from its beginning, in place of the current one, after a system reset. The
    // bytes are copied. Returns false when there is no memory.
    bool startPiece(std::span<const std::uint8_t> file);

    // Renders the next part of the piece into frames of two samples, left and right. Takes up to
    // some tens of milliseconds where instruments are loaded.
    void render(std::span<std::int16_t> samples);

    // Returns true when the piece has ended and its last notes have faded out.
    bool isOver() const { return fadeLeft == 0; }

    // In the order of their creation; each needs those above it.
    std::unique_ptr<fluid_settings_t, FluidDeleter> settings;
    std::unique_ptr<fluid_synth_t, FluidDeleter> synth; // null: no sound font is loaded
    std::unique_ptr<fluid_player_t, FluidDeleter> player;
    int lastTick = 0; // length of the piece in MIDI ticks; 0 until the first call of render
    int fadeLeft = 0; // frames of the fade-out that are still to come
};
