#include "platform/sdl/synthesizer.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <system_error>

#include "platform/common/loudness.h"
#include "platform/sdl/audio_format.h"

namespace {

constexpr double fadeTime = 0.5; // seconds after the last event of a piece
constexpr int fadeFrames = static_cast<int>(fadeTime * sampleRate);

// isPlayableMidi plays the piece without instruments, at a thousand times its speed.
constexpr double trialSpeed = 1000.0;
constexpr int trialRate = 8000;         // frames a second, the lowest that FluidSynth offers
constexpr int trialBlock = 64;          // frames; they take 8 seconds of the piece
constexpr double longestPiece = 3600.0; // seconds
constexpr double playerDelay = 2.0;     // seconds that the player waits for reverb, at any speed
constexpr double longestTrial = longestPiece / trialSpeed + playerDelay; // seconds

// FluidSynth would write lines of its own on standard error.
void silenceLog() {
    for (int level = FLUID_PANIC; level < LAST_LOG_LEVEL; ++level) {
        fluid_set_log_function(level, nullptr, nullptr);
    }
}

bool isRegularFile(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

bool makeSynthesizer(Synthesizer& made, int rate, bool reverb) {
    made = {};
    made.settings.reset(new_fluid_settings());
    fluid_settings_t* settings = made.settings.get();
    fluid_settings_setnum(settings, "synth.sample-rate", rate);
    fluid_settings_setnum(settings, "synth.gain", musicGain);
    fluid_settings_setint(settings, "synth.dynamic-sample-loading", 1);
    fluid_settings_setint(settings, "synth.lock-memory", 0);
    fluid_settings_setint(settings, "synth.reverb.active", reverb);
    fluid_settings_setint(settings, "synth.chorus.active", reverb);
    fluid_settings_setstr(settings, "player.timing-source", "sample");
    made.synth.reset(settings ? new_fluid_synth(settings) : nullptr);
    return made.synth != nullptr;
}

bool isDone(const Synthesizer& synthesizer) {
    return fluid_player_get_status(synthesizer.player.get()) == FLUID_PLAYER_DONE;
}

// The player's status changes seconds too late, because the player waits for reverb to end.
bool hasEnded(const Synthesizer& synthesizer) {
    const int tick = fluid_player_get_current_tick(synthesizer.player.get());
    return isDone(synthesizer) || (synthesizer.lastTick > 0 && tick >= synthesizer.lastTick);
}

// The division is the last field of the header: the ticks in a quarter note. 0 is not valid.
bool hasDivision(std::span<const std::uint8_t> file) {
    return file.size() >= 14 && (file[12] != 0 || file[13] != 0);
}

int countEvent(void* count, fluid_midi_event_t*) {
    ++*static_cast<int*>(count);
    return FLUID_OK;
}

} // namespace

bool isPlayableMidi(std::span<const std::uint8_t> file) {
    silenceLog();
    Synthesizer trial;
    if (!hasDivision(file) || !makeSynthesizer(trial, trialRate, false) ||
        !trial.startPiece(file)) {
        return false;
    }
    int events = 0; // stays 0 when the player cannot read the file
    fluid_player_set_playback_callback(trial.player.get(), countEvent, &events);
    fluid_player_set_tempo(trial.player.get(), FLUID_PLAYER_TEMPO_INTERNAL, trialSpeed);
    std::array<std::int16_t, trialBlock * 2> samples;
    trial.render(samples);
    // A piece without a length would be counted through again for every block.
    for (int frames = trialBlock;
         trial.lastTick > 0 && frames < longestTrial * trialRate && !isDone(trial);
         frames += trialBlock) {
        trial.render(samples);
    }
    return events > 0 && trial.lastTick > 0 && isDone(trial);
}

bool Synthesizer::loadSoundFont(std::span<const std::string> fonts,
                                void (*report)(const std::string&)) {
    if (!makeSynthesizer(*this, sampleRate, true)) {
        report("no music: the synthesizer cannot be started");
        return false;
    }
    for (const std::string& font : fonts) {
        if (isRegularFile(font) &&
            fluid_synth_sfload(synth.get(), font.c_str(), 1) != FLUID_FAILED) {
            return true;
        }
        report("the sound font " + font + " cannot be read");
    }
    synth.reset();
    return false;
}

bool Synthesizer::startPiece(std::span<const std::uint8_t> file) {
    fluid_synth_system_reset(synth.get());
    player.reset(new_fluid_player(synth.get()));
    lastTick = 0;
    fadeLeft = fadeFrames;
    return player && fluid_player_add_mem(player.get(), file.data(), file.size()) == FLUID_OK &&
           fluid_player_play(player.get()) == FLUID_OK;
}

void Synthesizer::render(std::span<std::int16_t> samples) {
    const bool fading = hasEnded(*this);
    const auto frames = static_cast<int>(samples.size() / 2);
    fluid_synth_write_s16(synth.get(), frames, samples.data(), 0, 2, samples.data(), 1, 2);
    if (lastTick == 0) {
        lastTick = fluid_player_get_total_ticks(player.get()); // known after the first block
    }
    for (std::size_t i = 0; fading && i + 1 < samples.size(); i += 2) {
        const double gain = static_cast<double>(fadeLeft) / fadeFrames;
        samples[i] = static_cast<std::int16_t>(samples[i] * gain);
        samples[i + 1] = static_cast<std::int16_t>(samples[i + 1] * gain);
        fadeLeft -= fadeLeft > 0 ? 1 : 0;
    }
}
