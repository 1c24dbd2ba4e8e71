// Sounds small enough to be made by the tests, and what was heard of them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

// A sound font of one instrument, a steady tone.
std::string toneFont();

// A MIDI file of one track, and the events of one note that lasts so long, up to 8 seconds.
std::string midiFile(const std::string& events, int ticksPerBeat = 1000);
std::string noteOf(double seconds);
std::string pieceOf(double seconds);

// A WAVE file that holds one level for that long.
std::string waveFile(std::int16_t level, double seconds);

// A machine whose audio device writes into a file, in a folder of its own.
struct SoundTest : testing::Test {
    std::filesystem::path folder;

    SoundTest();
    ~SoundTest() override;

    std::string write(const std::string& name, const std::string& bytes) const;

    // The game looks for messages for that long; gives the end notifications, by their device.
    static std::vector<unsigned> watch(double seconds);

    // The same until a little after the first of them, but not for ever.
    static std::vector<unsigned> watchForEnd();

    // Closes the device: all that was to be heard, samples of the left speaker.
    std::vector<std::int16_t> heard() const;
};

// How long the sound was, without and with the pauses in it.
double secondsOfSound(const std::vector<std::int16_t>& samples);
double secondsFromFirstToLast(const std::vector<std::int16_t>& samples);

// The lines that the game wrote on standard error since testing::internal::CaptureStderr.
std::vector<std::string> linesOfTheGame();
