// Effects, the beep and music: from their files to the device, and back to the game.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <vector>

#include "platform/sdl/sequencer.h"
#include "platform/sdl/sound.h"
#include "platform/sdl_machine.h"
#include "platform/small_music.h"

namespace {

using Ended = std::vector<int>; // pieces, by their device; negative: closed before their end
using Samples = std::vector<int>;

// A machine whose audio device writes into a file, in a folder of its own.
struct Sounds : InFolder {
    const std::string device = folder + "/device";

    Sounds() {
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", device.c_str(), 1);
        setenv("SDL_SOUNDFONTS", write("tone.sf2", toneFont()).c_str(), 1);
    }

    ~Sounds() override { heard(); }

    std::string write(const std::string& name, const std::string& bytes) const {
        std::ofstream(folder + "/" + name, std::ios::binary) << bytes;
        return folder + "/" + name;
    }

    // The seconds of sound that the device has taken.
    double taken() const {
        return static_cast<double>(std::filesystem::file_size(device)) / 4 / samplesPerSecond;
    }

    // The game looks for messages while the device takes that many seconds of sound, or until a
    // little after the first message.
    Ended listen(double seconds, UINT remove = PM_REMOVE) const {
        double end = taken() + seconds;
        Ended ended;
        for (int i = 0; i < 20'000 && taken() < end; ++i) {
            MSG message;
            if (PeekMessageA(&message, nullptr, MM_MCINOTIFY, MM_MCINOTIFY, remove)) {
                const bool whole = message.wParam == MCI_NOTIFY_SUCCESSFUL;
                ended.push_back(static_cast<int>(whole ? message.lParam : -message.lParam));
                if (ended.size() == 1) { end = taken() + 0.3; }
            }
            SDL_Delay(1);
        }
        return ended;
    }

    // Closes the device: all that was to be heard, samples of the left speaker.
    Samples heard() const {
        stopSequencer();
        stopSound();
        Samples left;
        double sums[2] = {1.0, 1.0};
        std::ifstream file(device, std::ios::binary);
        for (std::int16_t pair[2]; file.read(reinterpret_cast<char*>(pair), sizeof pair);) {
            left.push_back(pair[0]);
            sums[0] += std::abs(pair[0]);
            sums[1] += std::abs(pair[1]);
        }
        EXPECT_NEAR(sums[1] / sums[0], 1.0, 0.02) << "both speakers are equally loud";
        return left;
    }
};

// From the first sample to the last that is not silent, of `seconds` at the end of all.
double secondsOfSound(const Samples& samples, double seconds = 60.0) {
    const auto loud = [](int level) { return std::abs(level) > 50; };
    const auto count = std::min(samples.size(), static_cast<std::size_t>(seconds * 44100.0));
    const auto last = std::find_if(samples.rbegin(), samples.rbegin() + count, loud);
    const auto first = std::find_if(samples.end() - count, last.base(), loud);
    return static_cast<double>(last.base() - first) / samplesPerSecond;
}

// On standard error, where libraries write too.
auto linesOfTheGame() {
    const std::string text = '\n' + testing::internal::GetCapturedStderr();
    const std::regex line("\nglorbix: ");
    return std::distance(std::sregex_iterator(text.begin(), text.end(), line), {});
}

BOOL playEffect(const std::string& fileName) {
    return PlaySoundA(fileName.c_str(), nullptr, SND_ASYNC | SND_FILENAME);
}

MCIERROR send(MCIDEVICEID device, UINT command, DWORD_PTR flags, void* record) {
    return mciSendCommandA(device, command, flags, reinterpret_cast<DWORD_PTR>(record));
}

// Gives the device, 0 where the file is refused.
int playPiece(const std::string& fileName, DWORD_PTR flags = MCI_NOTIFY) {
    MCI_OPEN_PARMSA open = {};
    open.lpstrDeviceType = "sequencer";
    open.lpstrElementName = fileName.c_str();
    send(0, MCI_OPEN, MCI_OPEN_TYPE | MCI_OPEN_ELEMENT, &open);
    MCI_PLAY_PARMS play = {};
    play.dwCallback = 1; // any window
    EXPECT_EQ(send(open.wDeviceID, MCI_PLAY, flags, &play) == 0, open.wDeviceID != 0);
    return static_cast<int>(open.wDeviceID);
}

MCIERROR closePiece(int device) {
    return send(static_cast<MCIDEVICEID>(device), MCI_CLOSE, 0, nullptr);
}

TEST_F(Sounds, OfEffectsComeOnceAndCutOffTheOneBefore) {
    const std::string low = write("low.wav", waveFile(3000, 5.0));
    EXPECT_EQ(playEffect(low), TRUE);
    std::filesystem::remove(low);
    EXPECT_EQ(playEffect(low), TRUE) << "it is in memory";
    listen(0.2);
    EXPECT_EQ(playEffect(write("high.wav", waveFile(9000, 0.2))), TRUE);
    double start = 0.0;
    do { // until the machine is quick enough for the second call
        listen(0.4);
        start = taken();
        EXPECT_EQ(MessageBeep(10000), TRUE);
        listen(0.06);
        EXPECT_EQ(MessageBeep(10000), TRUE) << "it sounds already";
    } while (taken() > start + 0.12);
    listen(0.4);
    const Samples samples = heard();
    EXPECT_EQ(std::count(samples.begin(), samples.end(), 7171), 8820) << "whole, once, 2 dB softer";
    EXPECT_GT(std::count(samples.begin(), samples.end(), 2390), 2205);
    const Samples beep(samples.begin() + static_cast<int>(start * samplesPerSecond), samples.end());
    EXPECT_NEAR(secondsOfSound(beep), 0.15, 0.003);
    EXPECT_NEAR(*std::max_element(beep.begin(), beep.end()), 7600, 200);
    int waves = 0;
    for (std::size_t i = 1; i < beep.size(); ++i) {
        waves += beep[i - 1] <= 0 && beep[i] > 0 ? 1 : 0;
    }
    EXPECT_NEAR(waves, 132, 2) << "of 880 hertz";
}

TEST_F(Sounds, ThatCannotBePlayedSayItOnceAndLeaveTheRestAlone) {
    testing::internal::CaptureStderr();
    const std::string half = waveFile(5000, 0.1).substr(0, 4000);
    const std::string slow = waveFile(words({1, 1, 3999, 0, 7998, 0, 2, 16}), zeros(100));
    const std::string packed = // 505 samples in 256 bytes
        waveFile(words({17, 1, 8000, 0, 4055, 0, 256, 4, 2, 505}), zeros(256 * 480));
    for (const std::string& name :
         {folder + "/none.wav", write("junk.wav", "junk"), write("half.wav", half),
          write("slow.wav", slow), write("packed.wav", packed)}) {
        EXPECT_FALSE(playEffect(name) || playEffect(name)) << name;
    }
    const std::string good = write("good.wav", waveFile(5000, 0.1));
    EXPECT_EQ(PlaySoundA(good.c_str(), nullptr, SND_FILENAME), FALSE) << "the game would wait";
    EXPECT_EQ(playEffect(good), TRUE);
    listen(0.3);
    EXPECT_NEAR(secondsOfSound(heard()), 0.1, 0.001);
    setenv("SDL_AUDIODRIVER", "none of this name", 1);
    EXPECT_FALSE(playEffect(good) || MessageBeep(10000));
    EXPECT_EQ(linesOfTheGame(), 6);
}

TEST_F(Sounds, OfPiecesEndAndTheGameHearsOfItOnce) {
    const int first = playPiece(write("short.mid", pieceOf(0.3)));
    EXPECT_EQ(listen(10.0), Ended{first});
    EXPECT_EQ(closePiece(first), 0U);
    const int second = playPiece(folder + "/short.mid");
    EXPECT_NE(closePiece(first), 0U) << "long gone";
    EXPECT_GT(listen(10.0, 0).size(), 0U) << "the game only looks at the message";
    EXPECT_EQ(closePiece(second), 0U);
    const int third = playPiece(write("long.mid", pieceOf(7.0)));
    EXPECT_EQ(listen(2.0), Ended{});
    EXPECT_EQ(closePiece(third), 0U);
    EXPECT_EQ(listen(0.5), Ended{-third});
    const Samples samples = heard();
    EXPECT_GT(secondsOfSound(samples, 2.0), 0.5);
    EXPECT_EQ(secondsOfSound(samples, 0.3), 0.0) << "silent at once";
}

TEST_F(Sounds, OfAPieceGoOnUnderEffectsUntilAnotherIsOpened) {
    const std::string loud("\0\xB0\7\x7F", 4); // the channel's volume
    const int first = playPiece(write("loud.mid", pieceOf(7.0, loud)));
    listen(0.6);
    testing::internal::CaptureStderr();
    EXPECT_EQ(playPiece(folder + "/none.mid"), 0) << "refused";
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(playEffect(write("high.wav", waveFile(9000, 0.2))), TRUE);
    listen(0.4);
    MCI_STATUS_PARMS status = {0, 99, MCI_SEQ_STATUS_PORT, 0};
    EXPECT_EQ(send(static_cast<MCIDEVICEID>(first), MCI_STATUS, MCI_STATUS_ITEM, &status), 0U);
    EXPECT_EQ(status.dwReturn, 0U) << "the first port";
    const std::string rest("\x81\x48\x90\x3D\0", 5); // one second
    const double before = taken();
    playPiece(write("short.mid", pieceOf(0.3, rest, 100, '\0')), 0);
    const double opened = taken() + 0.1;
    EXPECT_EQ(listen(2.5), Ended{}) << "nobody asked for it";
    const Samples samples = heard();
    const auto at = [&](double seconds) {
        return samples.begin() + static_cast<std::ptrdiff_t>(seconds * samplesPerSecond);
    };
    EXPECT_NEAR(*std::max_element(samples.begin(), at(opened)), 7171 + 5965, 300);
    EXPECT_EQ(secondsOfSound({at(opened), at(std::max(opened, before + 0.9))}), 0.0);
    EXPECT_NEAR(*std::max_element(at(opened), samples.end()), 3721, 200) << "as loud as usual";
    EXPECT_NEAR(secondsOfSound({at(opened), samples.end()}), 0.78, 0.05) << "the end fades out";
}

TEST_F(Sounds, OfFilesThatAreNoMusicAreRefused) {
    const std::string good = pieceOf(0.5);
    const std::string slow("\0\xFF\x51\3\xFF\xFF\xFF\xFF\xFF\xFF\x7F\x90\x3C\x40", 14);
    const std::vector<std::string> names = {
        folder + "/none.mid",
        write("empty.mid", ""),
        write("half.mid", good.substr(0, good.size() / 2)),
        write("header_and_junk.mid", good.substr(0, 14) + std::string(300, 'j')),
        write("running.mid", midiFile(std::string("\0\x3C\x40\x60\x3C\0", 6))),
        write("no_division.mid", midiFile(good.substr(22, 7), 0)),
        write("silent.mid", midiFile("")),
        write("centuries.mid", midiFile(slow, 1)),
        write("over_an_hour.mid", pieceOf(37.0, "", 1)),
        write("too_large.mid", good + zeros(128 << 10)),
    };
    testing::internal::CaptureStderr();
    for (const std::string& name : names) {
        EXPECT_TRUE(playPiece(name) == 0 && playPiece(name) == 0) << name;
    }
    EXPECT_EQ(linesOfTheGame(), std::ssize(names));
    EXPECT_NE(playPiece(write("almost_an_hour.mid", pieceOf(35.0, "", 1))), 0);
}

TEST_F(Sounds, OfPiecesUseTheFirstSoundFontThatIsNotBroken) {
    const std::string piece = write("short.mid", pieceOf(0.3));
    const std::string junk = write("junk.sf2", std::string(300, 'j'));
    const std::string part = write("part.sf2", toneFont().substr(0, 2000));
    const std::string good = write("with:colon.sf2", toneFont());
    setenv("SDL_SOUNDFONTS", "/none.sf2", 1);
    EXPECT_EQ(playPiece(piece), 0);
    testing::internal::CaptureStderr();
    setenv("SDL_SOUNDFONTS", junk.c_str(), 1);
    EXPECT_NE(playPiece(piece), 0);
    EXPECT_EQ(listen(1.5), Ended{}) << "the game would go through all its pieces";
    setenv("SDL_SOUNDFONTS", (part + ":/none.sf2:" + folder + ';' + good).c_str(), 1);
    const int device = playPiece(piece);
    EXPECT_EQ(listen(10.0), Ended{device});
    const Samples samples = heard();
    EXPECT_NEAR(secondsOfSound(samples), 0.3, 0.05);
    EXPECT_GT(secondsOfSound(samples, 0.45), 0.0) << "the game heard of its end at once";
    EXPECT_EQ(linesOfTheGame(), 3);
}

} // namespace
