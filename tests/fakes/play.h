// What a story is told with: a folder with the game's files, keys that are pressed, time that
// passes. A story plays the game through its window procedure, as the machine would.
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

// The machine and the game as at program start.
void startAfresh();

// A fresh machine and a fresh game, in an empty folder.
class Story : public testing::Test {
protected:
    Story() { startAfresh(); }
    ~Story() override;

private:
    EmptyFolder folder_;
};

void expectVector(const Vector3& v, double x, double y, double z, double tolerance = 1e-4);

// The window is made, as at program start; false when the game gave up.
bool startUp();

// The whole program from its entry to its end, which comes after some thousand turns at the latest.
// `whenIdle` is called whenever the message queue is empty. Returns the exit code.
int runProgram(const std::function<void()>& whenIdle);

// Sends the window a message, and handles the messages that are posted meanwhile.
LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

inline void pressKey(int key) {
    send(WM_KEYDOWN, static_cast<WPARAM>(key));
}
inline void pressKeys(std::initializer_list<int> keys) {
    for (const int key : keys) {
        pressKey(key);
    }
}

// Time passes and one tick happens; drawn() then is its frame.
void tick(double seconds);
void ticks(int n, double seconds);

// The player chooses a new game; level 1 begins with its count-down.
void startGame();

// On level 1 of a game with this ground, the start signal due and the marble free to move.
void playLevel(const std::vector<Hole>& holes = {});
