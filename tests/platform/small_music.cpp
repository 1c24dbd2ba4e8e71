#include "platform/small_music.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <numbers>
#include <sstream>

#include <SDL.h>

#include "platform/sdl/sequencer.h"
#include "platform/sdl/sound.h"
#include "platform/windows_api.h"

namespace fs = std::filesystem;

namespace {

constexpr int samplesPerSecond = 44100;
constexpr int audible = 50; // steps

std::string number(std::uint32_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(value >> 8 * i & 0xFF);
    }
    return text;
}

std::string reversed(std::string text) {
    std::reverse(text.begin(), text.end());
    return text;
}

std::string chunk(const std::string& tag, const std::string& data) {
    return tag + number(static_cast<std::uint32_t>(data.size()), 4) + data;
}

std::string named(std::string name, const std::string& rest) {
    name.resize(20);
    return name + rest;
}

} // namespace

std::string toneFont() {
    std::string wave;
    for (int i = 0; i < 1000; ++i) {
        const double level = 12000.0 * std::sin(2.0 * std::numbers::pi * i / 100.0);
        wave += number(static_cast<std::uint32_t>(static_cast<int>(level)), 2);
    }
    wave.resize(wave.size() + 2 * 46); // silence that every sample ends with
    const std::string blank = number(0, 12);
    const std::string sample = number(0, 4) + number(1000, 4) + number(100, 4) + number(900, 4) +
                               number(samplesPerSecond, 4) + number(60, 4) + number(1, 2);
    const std::string loops = number(54, 2) + number(1, 2);
    const std::string lists =
        chunk("phdr", named("Tone", number(0, 6) + blank) +
                          named("EOP", number(0, 4) + number(1, 2) + blank)) +
        chunk("pbag", number(0, 4) + number(1, 4)) + chunk("pmod", number(0, 10)) +
        chunk("pgen", number(41, 4) + number(0, 4)) +
        chunk("inst", named("Tone", number(0, 2)) + named("EOI", number(1, 2))) +
        chunk("ibag", number(0, 4) + number(2, 4)) + chunk("imod", number(0, 10)) +
        chunk("igen", loops + number(53, 4) + number(0, 4)) +
        chunk("shdr", named("Tone", sample) + named("EOS", number(0, 26)));
    return chunk("RIFF", "sfbk" + chunk("LIST", "INFO" + chunk("ifil", number(0x10002, 4))) +
                             chunk("LIST", "sdta" + chunk("smpl", wave)) +
                             chunk("LIST", "pdta" + lists));
}

std::string midiFile(const std::string& events, int ticksPerBeat) {
    const std::string track = events + std::string("\0\xFF\x2F\0", 4);
    return "MThd" + reversed(number(6, 4)) + std::string("\0\0\0\1", 4) +
           reversed(number(static_cast<std::uint32_t>(ticksPerBeat), 2)) + "MTrk" +
           reversed(number(static_cast<std::uint32_t>(track.size()), 4)) + track;
}

std::string noteOf(double seconds) {
    const int ticks = static_cast<int>(seconds * 2000.0); // of 1000 a beat, two beats a second
    const std::string wait = {static_cast<char>(0x80 | ticks >> 7),
                              static_cast<char>(ticks & 0x7F)};
    return std::string("\0\x90\x3C\x7F", 4) + wait + "\x80\x3C\x40";
}

std::string pieceOf(double seconds) {
    return midiFile(noteOf(seconds));
}

std::string waveFile(std::int16_t level, double seconds) {
    const std::string frame = number(static_cast<std::uint32_t>(level), 2);
    std::string data;
    for (int i = 0; i < 2 * static_cast<int>(seconds * samplesPerSecond); ++i) {
        data += frame;
    }
    const std::string format = number(1, 2) + number(2, 2) + number(samplesPerSecond, 4) +
                               number(samplesPerSecond * 4, 4) + number(4, 2) + number(16, 2);
    return chunk("RIFF", "WAVE" + chunk("fmt ", format) + chunk("data", data));
}

SoundTest::SoundTest() {
    std::string name = (fs::temp_directory_path() / "glorbix_sound_XXXXXX").string();
    folder = mkdtemp(name.data()) ? name : "";
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", (folder / "heard").c_str(), 1);
    setenv("SDL_SOUNDFONTS", write("tone.sf2", toneFont()).c_str(), 1);
}

SoundTest::~SoundTest() {
    stopSequencer();
    stopSound();
    fs::remove_all(folder);
}

std::string SoundTest::write(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder / name, std::ios::binary) << bytes;
    return (folder / name).string();
}

std::vector<unsigned> SoundTest::watch(double seconds) {
    std::vector<unsigned> ended;
    const std::uint64_t end = SDL_GetTicks64() + static_cast<std::uint64_t>(1000.0 * seconds);
    while (SDL_GetTicks64() < end) {
        MSG message;
        if (PeekMessageA(&message, nullptr, MM_MCINOTIFY, MM_MCINOTIFY, PM_REMOVE)) {
            EXPECT_EQ(message.wParam, MCI_NOTIFY_SUCCESSFUL);
            ended.push_back(static_cast<unsigned>(message.lParam));
        }
        SDL_Delay(5);
    }
    return ended;
}

std::vector<unsigned> SoundTest::watchForEnd() {
    std::vector<unsigned> ended;
    for (int i = 0; i < 100 && ended.empty(); ++i) {
        ended = watch(0.1);
    }
    const std::vector<unsigned> more = watch(0.2);
    ended.insert(ended.end(), more.begin(), more.end());
    return ended;
}

std::vector<std::int16_t> SoundTest::heard() const {
    stopSequencer();
    stopSound();
    std::ifstream file(folder / "heard", std::ios::binary);
    std::vector<std::int16_t> left;
    for (std::array<std::int16_t, 2> frame;
         file.read(reinterpret_cast<char*>(frame.data()), sizeof frame);) {
        left.push_back(frame[0]);
    }
    return left;
}

double secondsOfSound(const std::vector<std::int16_t>& samples) {
    constexpr std::size_t window = samplesPerSecond / 100;
    double seconds = 0.0;
    for (std::size_t i = 0; i + window <= samples.size(); i += window) {
        const auto first = samples.begin() + static_cast<std::ptrdiff_t>(i);
        const bool loud =
            std::any_of(first, first + window, [](int level) { return std::abs(level) > audible; });
        seconds += loud ? 0.01 : 0.0;
    }
    return seconds;
}

double secondsFromFirstToLast(const std::vector<std::int16_t>& samples) {
    const auto loud = [](int level) { return std::abs(level) > audible; };
    const auto first = std::find_if(samples.begin(), samples.end(), loud);
    const auto last = std::find_if(samples.rbegin(), samples.rend(), loud).base();
    return first < last ? static_cast<double>(last - first) / samplesPerSecond : 0.0;
}

std::vector<std::string> linesOfTheGame() {
    std::istringstream text(testing::internal::GetCapturedStderr());
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        if (line.starts_with("glorbix: ")) { lines.push_back(line); }
    }
    return lines;
}
