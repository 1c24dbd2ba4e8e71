#include "platform/sdl/music_stream.h"

#include <algorithm>
#include <array>
#include <condition_variable>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <mutex>
#include <span>
#include <utility>

#include <SDL.h>
#include <SDL_mixer.h>

#include "platform/sdl/audio_format.h"
#include "platform/sdl/synthesizer.h"

namespace {

constexpr std::size_t samplesPerSecond = channelCount * sampleRate;
constexpr std::size_t samplesAhead = samplesPerSecond * 3 / 2;
constexpr std::size_t samplesToStart = samplesPerSecond / 4;
constexpr std::size_t blockSamples = 2048; // 23 ms
constexpr int quietLevel = 128;            // 48 dB below the loudest; a quieter sample is not heard

// What playMusic was called with.
struct Request {
    std::vector<std::uint8_t> piece;
    std::vector<std::string> soundFonts;
};

enum class Phase {
    Silent,    // no piece, or one that cannot be played
    Buffering, // silence until enough is queued to start
    Playing,   // the device takes from the queue
    Finished   // the device has taken the last sample
};

struct Stream {
    SDL_Thread* renderer = nullptr; // the music thread; used by the game's thread only

    std::mutex mutex;             // guards all that follows
    std::condition_variable work; // the music thread has something to do
    bool stopping = false;
    std::shared_ptr<const Request> request; // the piece to play; null: none
    Phase phase = Phase::Silent;
    std::vector<std::int16_t> queue; // samples for the device
    bool rendered = false;           // the queue holds the end of the piece
    std::vector<std::string> errors;

    bool wantsBlock() const {
        return request != nullptr && !rendered && queue.size() < samplesAhead;
    }

    void take(std::shared_ptr<const Request> next) {
        phase = next != nullptr ? Phase::Buffering : Phase::Silent;
        request = std::move(next);
        queue.clear();
        rendered = false;
    }

    // The last bar of a piece may end with a rest, and reverb fades out below what is heard.
    // Without them the next piece follows at once.
    void dropSilentEnd() {
        const auto isHeard = [](std::int16_t sample) { return std::abs(sample) >= quietLevel; };
        const auto lastHeard = std::find_if(queue.rbegin(), queue.rend(), isHeard);
        const auto kept = (queue.rend() - lastHeard + channelCount - 1) / channelCount;
        queue.resize(static_cast<std::size_t>(kept * channelCount));
    }

    void append(std::span<const std::int16_t> block, bool isLast) {
        queue.insert(queue.end(), block.begin(), block.end());
        rendered = isLast;
        if (rendered) { dropSilentEnd(); }
        if (rendered || queue.size() >= samplesToStart) { phase = Phase::Playing; }
    }
};

// Never destroyed: when the X server ends, Xlib calls exit() while the music thread still waits on
// it.
Stream& stream = *new Stream;

void reportError(const std::string& error) {
    const std::lock_guard lock(stream.mutex);
    stream.errors.push_back(error);
}

bool begin(Synthesizer& synthesizer, const Request& request) {
    return (synthesizer.hasSoundFont() ||
            synthesizer.loadSoundFont(request.soundFonts, reportError)) &&
           synthesizer.startPiece(request.piece);
}

// The music thread.
int SDLCALL renderMusic(void*) {
    Synthesizer synthesizer;
    std::shared_ptr<const Request> current;
    std::array<std::int16_t, blockSamples> block;
    std::unique_lock lock(stream.mutex);
    for (;;) {
        stream.work.wait(lock, [] { return stream.stopping || stream.wantsBlock(); });
        if (stream.stopping) { return 0; }
        const std::shared_ptr<const Request> request = stream.request;
        lock.unlock();
        const bool playable = request == current || begin(synthesizer, *request);
        current = request;
        if (playable) { synthesizer.render(block); }
        lock.lock();
        if (stream.request != request) {
            continue; // stopped or replaced in the meantime
        }
        if (playable) {
            stream.append(block, synthesizer.isOver());
        } else {
            stream.take(nullptr);
        }
    }
}

// The callback of the audio device, on its own thread, for its next samples.
void SDLCALL fillAudioBuffer(void*, Uint8* samples, int bytes) {
    const auto wanted = static_cast<std::size_t>(bytes);
    std::memset(samples, 0, wanted);
    const std::lock_guard lock(stream.mutex);
    if (stream.phase != Phase::Playing) { return; }
    const std::size_t count = std::min(stream.queue.size(), wanted / sizeof(std::int16_t));
    std::memcpy(samples, stream.queue.data(), count * sizeof(std::int16_t));
    stream.queue.erase(stream.queue.begin(),
                       stream.queue.begin() + static_cast<std::ptrdiff_t>(count));
    if (stream.queue.empty()) {
        stream.phase = stream.rendered ? Phase::Finished : Phase::Buffering;
    }
    stream.work.notify_one();
}

bool startRenderer() {
    if (stream.renderer == nullptr) {
        stream.renderer = SDL_CreateThread(renderMusic, "music", nullptr);
        Mix_HookMusic(stream.renderer != nullptr ? fillAudioBuffer : nullptr, nullptr);
    }
    return stream.renderer != nullptr;
}

} // namespace

bool playMusic(std::vector<std::uint8_t> piece, std::vector<std::string> soundFonts) {
    if (!startRenderer()) { return false; }
    auto request =
        std::make_shared<const Request>(Request{std::move(piece), std::move(soundFonts)});
    const std::lock_guard lock(stream.mutex);
    stream.take(std::move(request));
    stream.work.notify_one();
    return true;
}

void haltMusic() {
    const std::lock_guard lock(stream.mutex);
    stream.take(nullptr);
}

bool isMusicFinished() {
    const std::lock_guard lock(stream.mutex);
    return stream.phase == Phase::Finished;
}

std::vector<std::string> takeMusicErrors() {
    const std::lock_guard lock(stream.mutex);
    return std::exchange(stream.errors, {});
}

void stopMusicStream() {
    haltMusic();
    if (stream.renderer == nullptr) { return; }
    Mix_HookMusic(nullptr, nullptr);
    {
        const std::lock_guard lock(stream.mutex);
        stream.stopping = true;
        stream.work.notify_one();
    }
    SDL_WaitThread(stream.renderer, nullptr);
    stream.renderer = nullptr;
    stream.stopping = false;
}
