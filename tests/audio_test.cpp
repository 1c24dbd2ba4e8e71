// The music: when it starts, which piece follows, when it stops.
#include "fakes/play.h"

namespace {

using Music = Started<2>;

// Returns the calls that start a piece on the nth device.
Lines started(const std::string& file, int device) {
    const std::string n = std::to_string(device);
    return {"open " + file, "status " + n, "play " + n};
}

// A piece that is stopped while it plays. The notification of that closes the device once more, and
// nothing follows.
Lines closed(int device) {
    const std::string n = std::to_string(device);
    return {"close " + n, "close stale " + n};
}

Lines operator+(Lines a, const Lines& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// The piece that plays has come to its end.
void endPiece() {
    machine.playingDevice = 0;
    send(MM_MCINOTIFY, MCI_NOTIFY_SUCCESSFUL);
}

const std::string first = "sounds/midi1.mid";

} // namespace

TEST_F(Music, RotatesWhileALevelIsPlayed) {
    startGame();
    for (int i = 0; i < 3; ++i) {
        endPiece();
    }
    const Lines expected = started(first, 1) + Lines{"close 1"} + started("sounds/drwho2.mid", 2) +
                           Lines{"close 2"} + started("sounds/midi3.mid", 3) + Lines{"close 3"} +
                           started(first, 4);
    EXPECT_EQ(music(), expected);
    pressKey(VK_F1); // the next level does not change it
    EXPECT_EQ(music(), expected);
    failNext("MCI_OPEN");
    endPiece(); // the piece that follows is missing
    EXPECT_TRUE(machine.devices.empty());
    pressKey(VK_F6);
    EXPECT_EQ(music().back(), "close stale 4"); // the device opened last
}

TEST_F(Music, IsSwitchedWithF6) {
    pressKey(VK_F6);
    pressKey(VK_F6); // on the title screen this starts nothing
    pressKey(VK_F6);
    startGame();
    EXPECT_EQ(music(), Lines{});
    pressKeys({VK_F6, VK_F6});
    EXPECT_EQ(music(), started(first, 1) + closed(1));
    EXPECT_EQ(Game.musicPlaying, 0);
}

TEST_F(Music, StopsWithTheLevel) {
    startGame();
    Game.screen = Screen::Title;
    tick(0.1);
    EXPECT_EQ(music(), started(first, 1) + closed(1));
    startGame();
    machine.lines.clear();
    startGame(); // a new run begins with the first piece, and the rotation has not moved
    EXPECT_EQ(music(), closed(2) + started(first, 3));
    machine.lines.clear();
    endPiece();
    EXPECT_EQ(music(), Lines{"close 3"} + started("sounds/drwho2.mid", 4));
}

TEST_F(Music, EndsDuringTheNameEntry) {
    startGame();
    pressKeys({VK_F1, VK_F1});
    ASSERT_EQ(Game.screen, Screen::NameEntry);
    tick(0.1);
    EXPECT_EQ(music(), started(first, 1));
    endPiece();
    EXPECT_EQ(music().back(), "close 1"); // and no piece follows
}

TEST_F(Music, LeavesNothingOpenAfterAnError) {
    for (const char* command : {"MCI_OPEN", "MCI_STATUS", "MCI_PLAY"}) {
        restartAll();
        ASSERT_TRUE(startUp());
        failNext(command);
        startGame();
        const Lines tried = music();
        ticks(3, 0.1);
        EXPECT_EQ(music(), tried) << command; // not tried again
        EXPECT_TRUE(Game.musicPlaying && machine.devices.empty() && boxes().empty());
    }
}
