// Effects and the beep, as they are heard.
#include <algorithm>
#include <cstdlib>

#include <sys/stat.h>

#include "platform/sdl/sound.h"
#include "platform/small_music.h"
#include "platform/windows_api.h"

namespace {

BOOL play(const std::string& fileName) {
    return PlaySoundA(fileName.c_str(), nullptr, SND_ASYNC | SND_FILENAME);
}

double secondsAt(const std::vector<std::int16_t>& samples, int level) {
    return static_cast<double>(std::count(samples.begin(), samples.end(), level)) / 44100.0;
}

using Effects = SoundTest;

TEST_F(Effects, PlayOnceAndCutOffTheOneBefore) {
    const std::string low = write("low.wav", waveFile(3000, 1.0));
    const std::string high = write("high.wav", waveFile(9000, 0.2));
    EXPECT_EQ(play(low), TRUE);
    watch(0.3);
    EXPECT_EQ(play(high), TRUE);
    watch(0.8);
    const std::vector<std::int16_t> samples = heard();
    EXPECT_NEAR(secondsAt(samples, 9000), 0.2, 0.001) << "whole, once, with nothing beside it";
    EXPECT_GT(secondsAt(samples, 3000), 0.05);
    EXPECT_LT(secondsAt(samples, 3000), 0.9);
    EXPECT_NEAR(secondsAt(samples, 9000) + secondsAt(samples, 3000),
                secondsFromFirstToLast(samples), 0.001);
}

TEST_F(Effects, ThatCannotBePlayedSayItOnceAndLeaveTheRestAlone) {
    const std::string pipe = (folder / "pipe.wav").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::string none = (folder / "none.wav").string();
    const std::string empty = write("empty.wav", "");
    const std::string junk = write("junk.wav", std::string(300, 'j'));
    testing::internal::CaptureStderr();
    for (const std::string& name : {none, folder.string(), pipe, empty, junk}) {
        EXPECT_EQ(play(name), FALSE) << name;
        EXPECT_EQ(play(name), FALSE) << name;
    }
    EXPECT_EQ(PlaySoundA(nullptr, nullptr, SND_ASYNC | SND_FILENAME), FALSE);
    EXPECT_EQ(PlaySoundA(none.c_str(), nullptr, SND_FILENAME), FALSE) << "the game would wait";
    EXPECT_EQ(linesOfTheGame().size(), 5u);
    EXPECT_EQ(play(write("good.wav", waveFile(5000, 0.1))), TRUE);
    watch(0.4);
    EXPECT_NEAR(secondsAt(heard(), 5000), 0.1, 0.001);
}

TEST_F(Effects, BeepIsShortAndCutsOffToo) {
    play(write("low.wav", waveFile(3000, 1.0)));
    EXPECT_EQ(MessageBeep(10000), TRUE);
    watch(0.5);
    const std::vector<std::int16_t> samples = heard();
    EXPECT_LT(secondsAt(samples, 3000), 0.5);
    EXPECT_GT(*std::max_element(samples.begin(), samples.end()), 6000);
    EXPECT_GT(secondsOfSound(samples), 0.1);
    EXPECT_LT(secondsOfSound(samples), 0.3);
}

TEST_F(Effects, AreMissingOnAMachineWithoutADevice) {
    setenv("SDL_AUDIODRIVER", "none of this name", 1);
    const std::string effect = write("effect.wav", waveFile(5000, 0.1));
    testing::internal::CaptureStderr();
    EXPECT_EQ(play(effect), FALSE);
    EXPECT_EQ(MessageBeep(10000), FALSE);
    EXPECT_FALSE(startSound());
    EXPECT_EQ(linesOfTheGame().size(), 1u);
}

} // namespace
