// The game on a machine that fails, and played for long.
#include <cmath>
#include <random>

#include "data/best_times.h"
#include "fakes/play.h"

namespace {

const std::vector<std::string> twoLevels = {levelText({{0, -5000, 300, 200}}), levelText({})};

// A session of two levels, key by key: the step at which each is pressed. It uses menu, options,
// music, pause, name entry, and ends by "Quit".
const std::map<int, int> sessionKeys = {
    {3, VK_ESCAPE}, {4, VK_RETURN},  {6, VK_F6},   {7, VK_F6},     {8, VK_F2},
    {9, VK_F3},     {10, VK_F12},    {11, VK_F12}, {12, VK_F5},    {13, VK_F5},
    {14, VK_F1},    {18, VK_F1},     {24, 'A'},    {26, 'B'},      {28, 'C'},
    {30, VK_SPACE}, {32, VK_ESCAPE}, {34, VK_UP},  {36, VK_RETURN}};
constexpr int lastStep = 45;

void playSession() {
    runProgram([step = 0]() mutable {
        machine.drawn.clear();
        passTime(0.05);
        if (const auto key = sessionKeys.find(++step); key != sessionKeys.end()) {
            machine.queue.push_back(
                MSG{theWindow, WM_KEYDOWN, static_cast<WPARAM>(key->second), 0, 0, {0, 0}});
        }
        if (step == lastStep) { PostQuitMessage(0); } // the failure has lost a key
    });
}

struct Endurance : Story {
    Endurance() { writeGameFiles(twoLevels); }
};

bool isFinite(const Vector3& v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

} // namespace

TEST_F(Endurance, EveryCallOfTheSystemMayFail) {
    const std::string table = readFile(bestTimesFile);
    playSession();
    EXPECT_EQ(bestTimes.slots[0].name, std::string("ABC")) << "the session takes the best place";
    for (const char* function :
         {"EnumDisplaySettingsA", "ChangeDisplaySettingsA", "RegisterClassA", "CreateWindowExA",
          "GetDC", "ChoosePixelFormat", "SetPixelFormat", "wglCreateContext", "wglMakeCurrent",
          "SetTimer", "PostMessageA", "PlaySoundA", "MCI_OPEN", "MCI_STATUS", "MCI_PLAY",
          "CreateFileA", "ReadFile"}) {
        bool reached = true;
        for (int call = 0; reached && call < 40; call += call < 5 ? 1 : 7) {
            SCOPED_TRACE(std::string(function) + " fails at call " + std::to_string(call));
            restartAll();
            writeFile(bestTimesFile, table);
            failNext(function, call);
            playSession();
            reached = machine.failures[function].empty();
            EXPECT_EQ(machine.openFiles, 0);
            EXPECT_TRUE(readBestTimes()) << "the old table or the new one";
        }
    }
}

TEST_F(Endurance, AHundredRunsStayFinite) {
    ASSERT_TRUE(startUp());
    constexpr double lengths[] = {0.0001, 0.004, 0.016, 0.016, 0.1, 0.5}; // seconds
    constexpr int options[] = {VK_F2, VK_F3, VK_F4, VK_F5, VK_F6};
    constexpr int steering[] = {VK_UP, VK_LEFT, VK_RIGHT, VK_DOWN, VK_SHIFT};
    std::minstd_rand random(1);
    for (int run = 0; run < 100; ++run) {
        startGame();
        float clock = Game.clock;
        int levelNumber = Game.levelNumber;
        while (Game.screen == Screen::Level) {
            machine.keysHeld = {steering[random() % 5], steering[random() % 5]};
            machine.lines.clear();
            tick(lengths[random() % 6]);
            ASSERT_TRUE(isFinite(marble.getPosition()) && isFinite(marble.velocity) &&
                        std::isfinite(Game.clock) && std::isfinite(Game.turbo));
            ASSERT_TRUE(Game.levelNumber != levelNumber || Game.clock <= clock);
            if (random() % 8 == 0) { pressKey(options[random() % 5]); }
            if (random() % 25 == 0) { pressKey(VK_F1); }
            clock = Game.clock;
            levelNumber = Game.levelNumber;
        }
        while (Game.screen == Screen::NameEntry) {
            pressKey('X');
            tick(0.1);
        }
        ASSERT_LE(machine.devices.size(), 1U) << "each piece is closed before the next";
    }
}
