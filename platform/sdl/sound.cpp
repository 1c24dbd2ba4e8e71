#include "platform/sdl/sound.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <numbers>
#include <string>
#include <vector>

#include <SDL.h>
#include <SDL_mixer.h>

#include "platform/common/errors.h"
#include "platform/common/loudness.h"
#include "platform/regular_file.h"
#include "platform/sdl/audio_format.h"
#include "platform/windows_api.h"

namespace {

constexpr int framesPerBuffer = 1024;           // 23 ms from the call to the sound
constexpr int effectChannel = 0;                // of the mixer
constexpr std::size_t largestEffect = 64 << 20; // bytes
constexpr double longestEffect = 30.0;          // seconds
constexpr int lowestRate = 4000;                // frames a second
constexpr int highestRate = 192000;

struct ChunkDeleter {
    void operator()(Mix_Chunk* chunk) const { Mix_FreeChunk(chunk); }
};

using Chunk = std::unique_ptr<Mix_Chunk, ChunkDeleter>;

struct Sound {
    bool tried = false;                   // startSound was called
    bool open = false;                    // the device is
    std::map<std::string, Chunk> effects; // by file name; null: the file cannot be played
    std::vector<std::int16_t> beepSamples;
    Chunk beep; // plays beepSamples; null before the first beep
};

Sound sound;

bool openDevice() {
    // Otherwise SDL plays what is left of a file that is cut off, and reports nothing.
    SDL_SetHint(SDL_HINT_WAVE_TRUNCATION, "strict");
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0 ||
        Mix_OpenAudioDevice(sampleRate, AUDIO_S16SYS, channelCount, framesPerBuffer, nullptr, 0) !=
            0) {
        logError(std::string("no sound: ") + SDL_GetError());
        return false;
    }
    Mix_AllocateChannels(effectChannel + 1);
    Mix_Volume(effectChannel, static_cast<int>(effectVolume * MIX_MAX_VOLUME));
    return true;
}

SDL_RWops* streamOf(const std::vector<std::uint8_t>& file) {
    return SDL_RWFromConstMem(file.data(), static_cast<int>(file.size()));
}

double secondsOf(const SDL_AudioSpec& format, Uint32 bytes) {
    return static_cast<double>(bytes) / (SDL_AUDIO_BITSIZE(format.format) / 8.0) / format.channels /
           format.freq;
}

// SDL_mixer converts a file to the rate of the device at once, so that a small file of a low rate
// would take gigabytes.
bool isWorthConverting(const std::vector<std::uint8_t>& file, std::string& why) {
    SDL_AudioSpec format = {};
    Uint8* samples = nullptr; // decoded
    Uint32 bytes = 0;
    if (SDL_LoadWAV_RW(streamOf(file), 1, &format, &samples, &bytes) == nullptr) {
        why = SDL_GetError();
        return false;
    }
    SDL_FreeWAV(samples);
    if (format.freq < lowestRate || format.freq > highestRate) {
        why = "its rate is " + std::to_string(format.freq) + " Hz, not 4 to 192 kHz";
    } else if (secondsOf(format, bytes) > longestEffect) {
        why = "it is longer than 30 seconds";
    }
    return why.empty();
}

Chunk load(const std::string& fileName, std::string& why) {
    std::vector<std::uint8_t> file;
    if (!readRegularFile(fileName, largestEffect, file, why) || !isWorthConverting(file, why)) {
        return {};
    }
    Chunk loaded(Mix_LoadWAV_RW(streamOf(file), 1));
    if (loaded == nullptr) { why = SDL_GetError(); }
    return loaded;
}

Mix_Chunk* effectNamed(const std::string& fileName) {
    const auto known = sound.effects.find(fileName);
    if (known != sound.effects.end()) { return known->second.get(); }
    std::string why;
    Chunk loaded = load(fileName, why);
    if (loaded == nullptr) { logError("cannot play " + fileName + ": " + why); }
    return sound.effects.emplace(fileName, std::move(loaded)).first->second.get();
}

// Rises quickly and fades out, so that neither end clicks.
double beepLoudness(double seconds) {
    return seconds < beepAttack ? seconds / beepAttack
                                : (beepLength - seconds) / (beepLength - beepAttack);
}

void makeBeep() {
    const auto frames = static_cast<int>(beepLength * sampleRate);
    for (int i = 0; i < frames; ++i) {
        const double seconds = static_cast<double>(i) / sampleRate;
        const double wave = std::sin(2.0 * std::numbers::pi * beepFrequency * seconds);
        const double value = INT16_MAX * beepVolume * beepLoudness(seconds) * wave;
        sound.beepSamples.insert(sound.beepSamples.end(), channelCount,
                                 static_cast<std::int16_t>(value));
    }
    const std::size_t bytes = sound.beepSamples.size() * sizeof(std::int16_t);
    sound.beep.reset(Mix_QuickLoad_RAW(reinterpret_cast<Uint8*>(sound.beepSamples.data()),
                                       static_cast<Uint32>(bytes)));
}

BOOL play(Mix_Chunk* chunk) {
    return chunk != nullptr && Mix_PlayChannel(effectChannel, chunk, 0) >= 0 ? TRUE : FALSE;
}

bool isPlaying(const Mix_Chunk* chunk) {
    return Mix_Playing(effectChannel) != 0 && Mix_GetChunk(effectChannel) == chunk;
}

} // namespace

bool startSound() {
    if (!sound.tried) { sound.open = openDevice(); }
    sound.tried = true;
    return sound.open;
}

void stopSound() {
    const bool wasOpen = sound.open;
    if (wasOpen) { Mix_HaltChannel(-1); }
    sound = {};
    if (!wasOpen) { return; }
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

BOOL WINAPI PlaySoundA(const char* fileName, HMODULE, DWORD flags) {
    const DWORD needed = SND_ASYNC | SND_FILENAME;
    if (fileName == nullptr || (flags & needed) != needed || !startSound()) { return FALSE; }
    return play(effectNamed(fileName));
}

BOOL WINAPI MessageBeep(UINT) {
    if (!startSound()) { return FALSE; }
    if (sound.beep == nullptr) { makeBeep(); }
    if (isPlaying(sound.beep.get())) { return TRUE; }
    return play(sound.beep.get());
}
