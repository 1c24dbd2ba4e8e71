#include "platform/sdl/music_stream.h"

#include <algorithm>
#include <array>
#include <condition_variable>
#include <cstddef>
#include <cstring>
#include <memory>
#include <mutex>
#include <span>
#include <utility>

#include <SDL.h>
#include <SDL_mixer.h>

#include "platform/sdl/synthesizer.h"

namespace {

constexpr std::size_t samplesPerSecond = 2 * Synthesizer::samplesPerSecond; // of two speakers
constexpr std::size_t samplesAhead = samplesPerSecond * 3 / 2;
constexpr std::size_t samplesToStart = samplesPerSecond / 2;
constexpr std::size_t blockSamples = 2048; // 23 ms

struct Order {
    std::vector<std::uint8_t> piece;
    std::vector<std::string> soundFonts;
};

enum class Phase {
    Silent,   // no piece, or one that cannot be played
    Filling,  // nothing is heard until enough is queued to start
    Sounding, // the device takes from the queue
    Over      // the device has taken the last sample
};

struct Stream {
    SDL_Thread* renderer = nullptr; // the game's thread alone looks at it

    std::mutex mutex; // of all that follows
    std::condition_variable work;
    bool stopping = false;
    std::shared_ptr<const Order> order; // the piece to play; null: none
    Phase phase = Phase::Silent;
    std::vector<std::int16_t> queue;
    bool rendered = false; // the end of the piece is in the queue
    std::vector<std::string> problems;

    bool wantsBlock() const { return order && !rendered && queue.size() < samplesAhead; }

    void take(std::shared_ptr<const Order> next) {
        phase = next ? Phase::Filling : Phase::Silent;
        order = std::move(next);
        queue.clear();
        rendered = false;
    }

    void append(std::span<const std::int16_t> block, bool isLast) {
        queue.insert(queue.end(), block.begin(), block.end());
        rendered = isLast;
        if (rendered || queue.size() >= samplesToStart) { phase = Phase::Sounding; }
    }
};

// Never destroyed: the renderer still waits on it when the display server goes and the process ends
// without a word to us.
Stream& stream = *new Stream;

void report(const std::string& problem) {
    const std::lock_guard lock(stream.mutex);
    stream.problems.push_back(problem);
}

bool begin(Synthesizer& synthesizer, const Order& order) {
    return (synthesizer.hasSoundFont() || synthesizer.loadSoundFont(order.soundFonts, report)) &&
           synthesizer.startPiece(order.piece);
}

int SDLCALL renderMusic(void*) {
    Synthesizer synthesizer;
    std::shared_ptr<const Order> current;
    std::array<std::int16_t, blockSamples> block;
    std::unique_lock lock(stream.mutex);
    for (;;) {
        stream.work.wait(lock, [] { return stream.stopping || stream.wantsBlock(); });
        if (stream.stopping) { return 0; }
        const std::shared_ptr<const Order> order = stream.order;
        lock.unlock();
        const bool playable = order == current || begin(synthesizer, *order);
        current = order;
        if (playable) { synthesizer.render(block); }
        lock.lock();
        if (stream.order != order) {
            continue; // halted or replaced meanwhile
        }
        if (playable) {
            stream.append(block, synthesizer.isOver());
        } else {
            stream.take(nullptr);
        }
    }
}

// Called on the device's thread for its next samples.
void SDLCALL fillDevice(void*, Uint8* samples, int bytes) {
    const auto wanted = static_cast<std::size_t>(bytes);
    std::memset(samples, 0, wanted);
    const std::lock_guard lock(stream.mutex);
    if (stream.phase != Phase::Sounding) { return; }
    const std::size_t count = std::min(stream.queue.size(), wanted / sizeof(std::int16_t));
    std::memcpy(samples, stream.queue.data(), count * sizeof(std::int16_t));
    stream.queue.erase(stream.queue.begin(),
                       stream.queue.begin() + static_cast<std::ptrdiff_t>(count));
    if (stream.queue.empty()) { stream.phase = stream.rendered ? Phase::Over : Phase::Filling; }
    stream.work.notify_one();
}

bool startRenderer() {
    if (!stream.renderer) {
        stream.renderer = SDL_CreateThread(renderMusic, "music", nullptr);
        Mix_HookMusic(stream.renderer ? fillDevice : nullptr, nullptr);
    }
    return stream.renderer != nullptr;
}

} // namespace

bool playMusic(std::vector<std::uint8_t> piece, std::vector<std::string> soundFonts) {
    if (!startRenderer()) { return false; }
    auto order = std::make_shared<const Order>(Order{std::move(piece), std::move(soundFonts)});
    const std::lock_guard lock(stream.mutex);
    stream.take(std::move(order));
    stream.work.notify_one();
    return true;
}

void haltMusic() {
    const std::lock_guard lock(stream.mutex);
    stream.take(nullptr);
}

bool isMusicFinished() {
    const std::lock_guard lock(stream.mutex);
    return stream.phase == Phase::Over;
}

std::vector<std::string> takeMusicErrors() {
    const std::lock_guard lock(stream.mutex);
    return std::exchange(stream.problems, {});
}

void stopMusicStream() {
    haltMusic();
    if (!stream.renderer) { return; }
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
