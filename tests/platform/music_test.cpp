// Music, from the file to the ear and back to the game.
#include <cstdlib>

#include <SDL.h>
#include <sys/stat.h>

#include "platform/sdl/sound_font.h"
#include "platform/small_music.h"
#include "platform/windows_api.h"

namespace {

const HWND listener = reinterpret_cast<HWND>(std::uintptr_t{1});

MCIERROR openPiece(const std::string& fileName, MCIDEVICEID& device) {
    MCI_OPEN_PARMSA open = {};
    open.lpstrDeviceType = "sequencer";
    open.lpstrElementName = fileName.c_str();
    const MCIERROR error = mciSendCommandA(0, MCI_OPEN, MCI_OPEN_TYPE | MCI_OPEN_ELEMENT,
                                           reinterpret_cast<DWORD_PTR>(&open));
    device = open.wDeviceID;
    return error;
}

MCIERROR play(MCIDEVICEID device) {
    MCI_PLAY_PARMS play = {};
    play.dwCallback = reinterpret_cast<DWORD_PTR>(listener);
    return mciSendCommandA(device, MCI_PLAY, MCI_NOTIFY, reinterpret_cast<DWORD_PTR>(&play));
}

MCIERROR close(MCIDEVICEID device) {
    return mciSendCommandA(device, MCI_CLOSE, 0, 0);
}

MCIDEVICEID openAndPlay(const std::string& fileName) {
    MCIDEVICEID device = 0;
    EXPECT_EQ(openPiece(fileName, device), 0u);
    MCI_STATUS_PARMS status = {};
    status.dwItem = MCI_SEQ_STATUS_PORT;
    EXPECT_EQ(
        mciSendCommandA(device, MCI_STATUS, MCI_STATUS_ITEM, reinterpret_cast<DWORD_PTR>(&status)),
        0u);
    EXPECT_EQ(play(device), 0u);
    return device;
}

using Music = SoundTest;

TEST_F(Music, EndsByItselfAndSaysSoOnceForEachPiece) {
    const std::string piece = write("piece.mid", pieceOf(0.6));
    const MCIDEVICEID first = openAndPlay(piece);
    EXPECT_EQ(watch(0.9), std::vector<unsigned>{}) << "the last note still fades";
    EXPECT_EQ(watchForEnd(), std::vector<unsigned>{first});
    EXPECT_EQ(close(first), 0u);
    const MCIDEVICEID second = openAndPlay(piece);
    EXPECT_NE(second, first);
    EXPECT_NE(close(first), 0u) << "long gone";
    EXPECT_EQ(watchForEnd(), std::vector<unsigned>{second});
    const std::vector<std::int16_t> samples = heard();
    EXPECT_GT(secondsOfSound(samples), 2 * 0.6);
    EXPECT_LT(secondsOfSound(samples), 2 * 1.2);
    EXPECT_LT(secondsFromFirstToLast(samples), 4.0) << "each end is told promptly";
}

TEST_F(Music, StopsAtOnceWhenClosedAndNeverSpeaksOfIt) {
    const MCIDEVICEID device = openAndPlay(write("long.mid", pieceOf(7.0)));
    watch(0.7);
    EXPECT_EQ(close(device), 0u);
    EXPECT_EQ(watch(0.6), std::vector<unsigned>{});
    const std::vector<std::int16_t> samples = heard();
    EXPECT_GT(secondsOfSound(samples), 0.05);
    EXPECT_EQ(secondsOfSound({samples.end() - 44100 / 3, samples.end()}), 0.0);
}

TEST_F(Music, TakesBackTheWordOfAnEndThatTheGameHasNotHeard) {
    const MCIDEVICEID device = openAndPlay(write("short.mid", pieceOf(0.1)));
    MSG message;
    const auto isPosted = [&] {
        return PeekMessageA(&message, nullptr, MM_MCINOTIFY, MM_MCINOTIFY, 0) == TRUE;
    };
    for (int i = 0; i < 300 && !isPosted(); ++i) {
        SDL_Delay(10);
    }
    ASSERT_TRUE(isPosted());
    EXPECT_EQ(close(device), 0u);
    EXPECT_EQ(watch(0.1), std::vector<unsigned>{});
}

TEST_F(Music, GoesOnWhileTheGameLooksAway) {
    openAndPlay(write("long.mid", pieceOf(7.0)));
    SDL_Delay(1500);
    const std::vector<std::int16_t> samples = heard();
    EXPECT_GT(secondsOfSound(samples), 0.7);
    EXPECT_NEAR(secondsOfSound(samples), secondsFromFirstToLast(samples), 0.03) << "a gap";
}

TEST_F(Music, IsRefusedWhenTheFileIsNone) {
    const std::string pipe = (folder / "pipe.mid").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::string good = pieceOf(0.5);
    const std::string header = good.substr(0, 14);
    std::string half = good;
    half[11] = 2; // tracks
    const std::string slow("\0\xFF\x51\3\xFF\xFF\xFF\xFF\xFF\xFF\x7F\x90\x3C\x40", 14);
    std::vector<std::string> names = {
        (folder / "none.mid").string(),
        folder.string(),
        pipe,
        "/proc/self/mem", // as a disk that fails
        write("junk.mid", std::string(300, 'j')),
        write("header_and_junk.mid", header + std::string(300, 'j')),
        write("running.mid", midiFile(std::string("\0\x3C\x40\x60\x3C\0", 6))),
        write("no_division.mid", midiFile(noteOf(0.05), 0)),
        write("half.mid", half),
        write("silent.mid", midiFile("")),
        write("no_length.mid", midiFile(std::string("\0\x90\x3C\x40", 4))),
        write("centuries.mid", midiFile(slow, 1)),
        write("too_large.mid", good + std::string(2 << 20, '\0')),
    };
    for (std::size_t length = 0; length < good.size(); ++length) {
        names.push_back(write(std::to_string(length) + ".mid", good.substr(0, length)));
    }
    testing::internal::CaptureStderr();
    for (const std::string& name : names) {
        MCIDEVICEID device = 0;
        EXPECT_NE(openPiece(name, device), 0u) << name;
        EXPECT_NE(play(device), 0u) << name;
    }
    EXPECT_EQ(linesOfTheGame().size(), names.size());
    EXPECT_EQ(watch(0.1), std::vector<unsigned>{});
}

TEST_F(Music, PlaysOnTheFirstSoundFontThatIsNotBroken) {
    const std::string font = toneFont();
    const std::string junk = write("junk.sf2", std::string(300, 'j'));
    const std::string part = write("part.sf2", font.substr(0, font.size() - 100));
    const std::string good = write("with:colon.sf2", font);
    setenv("SDL_SOUNDFONTS",
           (junk + ":/none.sf2;" + good + ';' + part + ':' + folder.string()).c_str(), 1);
    std::string why;
    EXPECT_EQ(findSoundFonts(why), (std::vector<std::string>{junk, good, part, folder.string()}));

    setenv("SDL_SOUNDFONTS", (junk + ':' + part + ':' + folder.string() + ';' + good).c_str(), 1);
    testing::internal::CaptureStderr();
    const MCIDEVICEID device = openAndPlay(write("short.mid", pieceOf(0.3)));
    EXPECT_EQ(watchForEnd(), std::vector<unsigned>{device});
    EXPECT_EQ(linesOfTheGame().size(), 3u);
    EXPECT_GT(secondsOfSound(heard()), 0.2);
}

TEST_F(Music, IsSilentWithoutAnySoundFont) {
    const std::string piece = write("short.mid", pieceOf(0.1));
    testing::internal::CaptureStderr();
    setenv("SDL_SOUNDFONTS", write("junk.sf2", "junk").c_str(), 1);
    EXPECT_EQ(close(openAndPlay(piece)), 0u);
    const MCIDEVICEID broken = openAndPlay(piece);
    EXPECT_EQ(watch(1.0), std::vector<unsigned>{}) << "the game would go through all its pieces";
    EXPECT_EQ(close(broken), 0u);
    setenv("SDL_SOUNDFONTS", (folder / "none.sf2").c_str(), 1);
    MCIDEVICEID none = 0;
    EXPECT_NE(openPiece(piece, none), 0u);
    EXPECT_NE(openPiece(piece, none), 0u);
    EXPECT_EQ(linesOfTheGame().size(), 2u);
    EXPECT_EQ(secondsOfSound(heard()), 0.0);
}

} // namespace
