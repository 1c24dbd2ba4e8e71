// What tests need to play the game: a folder with its files, keys that are pressed, time that
// passes. They play it through its window procedure, as Windows would.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "app/window.h"
#include "fakes/game_files.h"
#include "fakes/trace.h"
#include "sim/level.h"
#include "sim/marble.h"
#include "state/game.h"

inline constexpr LONGLONG counterFrequency = 10'000'000; // counts a second

// Resets the machine and the game to their state at program start.
void restartAll();

// Creates the window, as at program start. Returns false when the game wants to end.
bool startUp();

// A test with machine and game as at program start, in an empty folder.
class Story : public testing::Test {
protected:
    Story() { restartAll(); }
    ~Story() override;

private:
    EmptyFolder folder_;
};

// The same after the start, with some levels of flat ground, and no call recorded.
template <int levels>
class Started : public Story {
protected:
    Started() {
        writeGameFiles(std::vector(levels, levelText({})));
        EXPECT_TRUE(startUp());
        machine.lines.clear();
    }
};

void expectVector(const Vector3& v, double x, double y, double z, double tolerance = 1e-4);

// Runs the whole program from its entry to its end. Calls `whenIdle` whenever the message queue is
// empty, at most some thousand times. Returns the exit code.
int runProgram(const std::function<void()>& whenIdle);

// Sends the window a message, and handles the messages that it posts.
LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

inline void pressKey(int key) {
    send(WM_KEYDOWN, static_cast<WPARAM>(key));
}
inline void pressKeys(std::initializer_list<int> keys) {
    for (const int key : keys) {
        pressKey(key);
    }
}

// Lets time pass, then sends a tick. drawn() then has its frame.
void tick(double seconds);
void ticks(int n, double seconds);

// Chooses a new game: level 1 begins with its count-down.
void startGame();

// Starts level 1 on this ground, with the start signal due and the marble free to move.
void playLevel(const std::vector<Hole>& holes = {});
