// Whole runs, from the start of the program to its end: the player sits at the idle moments.
#include <functional>

#include "data/best_times.h"
#include "fakes/play.h"

namespace {

// What the player waits for, and does then.
struct Scene {
    std::function<bool()> when;
    std::function<void()> then;
};

// Plays the program through the scenes, an eighth of a second a turn.
int play(std::deque<Scene> scenes) {
    const int exitCode = runProgram([&] {
        passTime(0.125);
        machine.drawn.clear();
        if (scenes.empty() || !scenes.front().when()) { return; }
        scenes.front().then();
        scenes.pop_front();
    });
    EXPECT_TRUE(scenes.empty()) << scenes.size() << " scenes were never reached";
    return exitCode;
}

std::function<bool()> shows(Screen screen) {
    return [screen] { return Game.screen == screen && !Game.menuOpen; };
}

std::function<bool()> playsLevel(int number) {
    return [number] { return Game.screen == Screen::Level && Game.levelNumber == number; };
}

std::function<void()> keys(const std::vector<int>& pressed) {
    return [pressed] {
        for (const int key : pressed) {
            queueMessage(WM_KEYDOWN, key);
        }
    };
}

const auto newGame = keys({VK_ESCAPE, VK_RETURN});
const auto quit = keys({VK_ESCAPE, VK_UP, VK_RETURN});

struct Run : Story {
    Run() { writeGameFiles({levelText({}), levelText({})}); }
};

} // namespace

TEST_F(Run, ByGoalIsNamedAndSaved) {
    EXPECT_EQ(play({{shows(Screen::Title), newGame},
                    {playsLevel(1), [] { hold(VK_UP); }},
                    {playsLevel(2), [] {}},
                    {shows(Screen::NameEntry), keys({'J'})},
                    {[] { return Game.nameCursor == 1; }, keys({'O'})},
                    {[] { return Game.nameCursor == 2; }, keys({'E'})},
                    {shows(Screen::BestTimes), keys({VK_SPACE})},
                    {shows(Screen::Title), quit}}),
              0);
    // Driving straight over level ground takes 14.5 seconds a level.
    EXPECT_EQ(readFile("highScore.dat"), "29 JOE 100 aaa 110 bbb 120 ccc 130 ddd 140 eee 150 "
                                         "fff 160 ggg 170 hhh 180 iii ");
    EXPECT_EQ(boxes(), Lines{});
    EXPECT_TRUE(machine.devices.empty());
    const std::string menu = "sounds/menu.wav", go = "sounds/go.wav", goal = "sounds/allright.wav";
    EXPECT_EQ(sounds(),
              (Lines{menu, menu, go, goal, go, goal, menu, menu, menu, menu, menu, menu}));
}
