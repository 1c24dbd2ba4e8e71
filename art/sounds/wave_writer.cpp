#include "art/sounds/wave_writer.h"

#include "art/sounds/file_bytes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

constexpr std::uint32_t channelCount = 2;
constexpr std::uint32_t bytesPerSample = 2;
constexpr std::uint32_t bytesPerFrame = channelCount * bytesPerSample;

void appendFormatChunk(FileBytes& file) {
    constexpr std::uint32_t uncompressed = 1;
    constexpr auto rate = static_cast<std::uint32_t>(samplesPerSecond);
    file.text("fmt ");
    file.littleEndian(16, 4);
    file.littleEndian(uncompressed, 2);
    file.littleEndian(channelCount, 2);
    file.littleEndian(rate, 4);
    file.littleEndian(rate * bytesPerFrame, 4);
    file.littleEndian(bytesPerFrame, 2);
    file.littleEndian(8 * bytesPerSample, 2);
}

void appendSample(FileBytes& file, double sample) {
    const double scaled = std::floor(std::clamp(sample, -1.0, 1.0) * 32767.0 + 0.5);
    file.littleEndian(static_cast<std::uint32_t>(static_cast<int>(scaled)), bytesPerSample);
}

} // namespace

bool writeWaveFile(const std::filesystem::path& path, const SoundBuffer& sound) {
    const auto dataSize = static_cast<std::uint32_t>(sound.left.size()) * bytesPerFrame;
    FileBytes file;
    file.text("RIFF");
    file.littleEndian(36 + dataSize, 4);
    file.text("WAVE");
    appendFormatChunk(file);
    file.text("data");
    file.littleEndian(dataSize, 4);
    for (std::size_t i = 0; i < sound.left.size(); ++i) {
        appendSample(file, sound.left[i]);
        appendSample(file, sound.right[i]);
    }
    return file.writeTo(path);
}
