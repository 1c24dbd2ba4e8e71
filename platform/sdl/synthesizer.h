// MIDI music through FluidSynth. A synthesizer is used by one thread at a time.
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

// True when the bytes are a whole MIDI file with music in it that lasts up to an hour, which takes a
// few milliseconds to find out. The first call has to come before any synthesizer is used.
bool isPlayableMidi(std::span<const std::uint8_t> file);

struct Synthesizer {
    static constexpr int samplesPerSecond = 44100;

    // Loads the first of the fonts that is not broken; samples are loaded as a piece asks for them.
    // Calls `report` with one line for each broken font. Returns false when there is none left.
    bool loadSoundFont(std::span<const std::string> fonts, void (*report)(const std::string&));
    bool hasSoundFont() const { return synth != nullptr; }

    // Begins a piece in place of the current one, all instruments as after power-on. The bytes are
    // copied. Returns false when there is no memory.
    bool startPiece(std::span<const std::uint8_t> file);

    // Renders the next part of the piece: pairs of samples, left and right. Takes up to some tens
    // of milliseconds where the piece changes instruments.
    void render(std::span<std::int16_t> samples);

    // True when the last notes have faded away.
    bool isOver() const { return fadeLeft == 0; }

    // In the order of their making; each needs those above it.
    std::unique_ptr<fluid_settings_t, FluidDeleter> settings;
    std::unique_ptr<fluid_synth_t, FluidDeleter> synth; // null: no instruments yet
    std::unique_ptr<fluid_player_t, FluidDeleter> player;
    int lastTick = 0; // of the piece; 0: not known before the first rendering
    int fadeLeft = 0; // frames
};
