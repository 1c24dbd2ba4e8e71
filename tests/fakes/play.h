// The vocabulary of a story: a folder with the game's files, keys that are pressed, time that goes
// by. A story plays the game through its window procedure, as the machine would.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "app/game.h"
#include "app/window.h"
#include "data/level.h"
#include "fakes/trace.h"
#include "sim/marble.h"

inline constexpr LONGLONG counterFrequency = 10'000'000; // counts a second

inline constexpr double testGlyphHeight = 33; // pixels: of the test font, and its line spacing

// The width of a character of the test font in pixels; those it does not have advance by 10.
constexpr double testGlyphWidth(char c) { return 10 + c % 7; }

// The machine and the game as at program start.
void startAfresh();

// A fresh machine and a fresh game, in an empty folder of its own that the test leaves behind.
class Story : public testing::Test {
protected:
    Story();
    ~Story() override;

private:
    std::filesystem::path before_;
    std::filesystem::path folder_;
};

void expectVector(const Vector3& v, double x, double y, double z, double tolerance = 1e-4);

void writeFile(const std::string& name, const std::string& content);
std::string readFile(const std::string& name);

// A picture of one colour, 0xRRGGBB; and a mip chain whose level k has the colour k + 1.
void writeBitmap(const std::string& name, int width, int height, unsigned colour = 0x102030);
void writeMipChain(const std::string& base, int size, int levels);

// A level file: what `head` says, the ground texture "ground", and holes of x, y, width, depth.
std::string levelText(const std::vector<Hole>& holes, const std::string& head = "");

// All files that the game needs, with these level files as its levels 1, 2, 3, ...; the best times
// are 100, 110, ... 190 seconds, by aaa, bbb, ... jjj.
void writeGameFiles(const std::vector<std::string>& levels = {levelText({})});

// The window is made, as at program start; false when the game gave up.
bool startUp();

// The whole program from its entry to its end, which comes after some thousand turns at the latest.
// `whenIdle` is called whenever the message queue is empty. Returns the exit code.
int runProgram(const std::function<void()>& whenIdle);

// The program will find the message in its queue.
void queueMessage(UINT message, int wParam = 0);

// Handles what waits in the queue; a quit message stays there.
void handleMessages();

// Sends the window a message, and handles what comes of it.
LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

inline void pressKey(int key) { send(WM_KEYDOWN, static_cast<WPARAM>(key)); }

// Time goes by and one tick happens; drawn() then is its frame.
void tick(double seconds);
void ticks(int n, double seconds);

// The player chooses a new game; level 1 begins with its count-down.
void startGame();

// On level 1 of a game with this ground, the start signal due and the marble free to move.
void playLevel(const std::vector<Hole>& holes = {});

// Plays on, in steps of a tenth of a second, until the condition holds or a minute has passed.
template <class Condition>
bool playUntil(Condition condition) {
    for (int n = 0; n < 600; ++n) {
        if (condition()) return true;
        tick(0.1);
    }
    return false;
}
