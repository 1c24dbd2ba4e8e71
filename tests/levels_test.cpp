// The shipped courses can be played: an automatic driver, with the five keys only, reaches every
// goal in time and without a catch, recorded drives end as before, and model players finish each
// course less often than the one before.
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <set>

#include <gtest/gtest.h>

#include "data/best_times.h"
#include "data/level_list.h"
#include "fakes/game_files.h"
#include "sim/course.h"
#include "state/game.h"
#include "tools/level/command_line.h"
#include "tools/level/drive.h"
#include "tools/level/driver.h"
#include "tools/level/fault_text.h"
#include "tools/level/player.h"

namespace {

constexpr float timeToSpare = 5.0F; // seconds that a level leaves the driver at least

std::vector<std::string> shippedLevels() {
    std::vector<std::string> names;
    std::ifstream list(GLORBIX_GAME_DIR "/maps/maplist.dat");
    std::string word;
    list >> word;
    while (list >> word) {
        names.push_back(word);
    }
    return names;
}

struct Course : testing::TestWithParam<std::string> {
    void SetUp() override {
        std::filesystem::current_path(GLORBIX_GAME_DIR);
        LevelFileReport report;
        ASSERT_TRUE(startRun(GetParam().c_str(), report)) << faultMessage(report.fault);
    }
};

std::string nameOf(const std::string& levelFile) {
    return std::filesystem::path(levelFile).stem().string();
}

INSTANTIATE_TEST_SUITE_P(Shipped, Course, testing::ValuesIn(shippedLevels()),
                         [](const auto& course) { return nameOf(course.param); });

TEST_P(Course, IsDrivenToItsGoalAtAnyFrameRate) {
    const RunState start = runState();
    for (const int ticksPerSecond : {30, 60, 144}) {
        setRunState(start);
        Driver driver(level);
        const Drive drive =
            driveToEnd(ticksPerSecond, [&](float dt) { return driver.keysFor(dt); });
        EXPECT_TRUE(drive.end.done) << ticksPerSecond << " ticks a second";
        EXPECT_EQ(drive.end.catches, 0) << ticksPerSecond << " ticks a second";
        EXPECT_LT(drive.end.result, levelTime - timeToSpare) << ticksPerSecond;
    }
}

// A player who holds a lane along one side, with turbo from the start.
Keys keysInLane(float lane) {
    const float wanted = std::clamp((lane - marble.position.x) / 250.0F, -3.0F, 3.0F);
    const float missing = wanted - marble.velocity.x;
    return upKey | turboKey | (missing < -0.2F ? leftKey : missing > 0.2F ? rightKey : noKey);
}

TEST_P(Course, EndsARecordedDriveToTheLastBit) {
    const RunState start = runState();
    const std::string keyFile = GLORBIX_DRIVES_DIR "/" + nameOf(GetParam()) + ".keys";
    KeyFile keys;
    std::string error;
    ASSERT_TRUE(readKeyFile(keyFile, keys, error)) << error;
    const Drive drive = replay(keys);
    EXPECT_TRUE(drive.end.done);
    EXPECT_EQ(drive.keys.time, keys.time) << "physics or course have changed: record it again";
    EXPECT_EQ(firstDifference(keys.checkpoints, drive.keys.checkpoints), 0)
        << "up to this tick the marble has rolled differently, if only in a last bit";
    // No lane along a side is faster, but in the first course, which is wide and easy.
    if (GetParam() == shippedLevels().front()) { return; }
    for (const float lane : {-640.0F, 640.0F}) {
        setRunState(start);
        const RunState end = driveToEnd(60, [&](float) { return keysInLane(lane); }).end;
        EXPECT_TRUE(!end.done || end.result > 1.05F * keys.time) << end.result;
    }
}

TEST_P(Course, IsGood) {
    EXPECT_EQ(checkLevels({{GetParam()}}), exitOk);
}

TEST_P(Course, EndsInAGateThatLetsAMarbleThrough) {
    EXPECT_LT(level.heightAt(-230.0F, goalLine), level.heightAt(0.0F, goalLine) - 200.0F);
    EXPECT_LT(level.heightAt(230.0F, goalLine), level.heightAt(0.0F, goalLine) - 200.0F);
    RunState state = runState();
    state.clock = levelTime;
    state.rolling.position = {0.0F, 5300.0F, level.heightAt(0.0F, 5300.0F)};
    state.rolling.velocity = {0.0F, 4.0F, 0.0F};
    setRunState(state);
    const Drive drive = driveToEnd(60, [](float) { return upKey; });
    EXPECT_LT(drive.end.result, 0.8F);
    EXPECT_LT(std::abs(drive.end.rolling.position.x), 30.0F);
}

int finishesOf(const PlayerSkill& skill, int runs) {
    const RunState start = runState();
    const Guide guide(level, safeClearance);
    int finishes = 0;
    std::set<float> clocks;
    for (int run = 1; run <= runs; ++run) {
        setRunState(start);
        Player player(skill, guide, static_cast<unsigned>(run));
        const RunState end = driveToEnd(60, [&](float dt) { return player.keysFor(dt); }).end;
        finishes += end.done ? 1 : 0;
        clocks.insert(end.clock);
    }
    EXPECT_GT(clocks.size(), 1U) << "every seed plays alike";
    return finishes;
}

// Model players measure it: tools/level/player.h.
TEST(Courses, GetHarderFromTheFirstToTheLast) {
    constexpr int runs = 40;
    std::filesystem::current_path(GLORBIX_GAME_DIR);
    std::vector<int> average;
    for (const std::string& name : shippedLevels()) {
        LevelFileReport report;
        ASSERT_TRUE(startRun(name.c_str(), report));
        average.push_back(finishesOf(*findSkill("average"), runs));
        startRun(name.c_str(), report);
        EXPECT_GE(finishesOf(*findSkill("good"), runs), runs / 3) << name;
        const std::size_t n = average.size();
        if (n <= 6) { EXPECT_GE(average.back(), runs / 3) << name; }
        if (n > 1) { EXPECT_LE(average[n - 1], average[n - 2] + runs * 15 / 100) << name; }
    }
    EXPECT_LT(average.back(), runs / 2) << "the last is hard";
}

TEST(Rivals, AreATableThatTheGameItselfCouldHaveWritten) {
    const EmptyFolder folder;
    const std::string rivals = readFile(GLORBIX_GAME_DIR "/rivals.dat");
    writeFile(bestTimesFile, rivals);
    ASSERT_TRUE(readBestTimes());
    for (int i = 0; i < bestTimesShown; ++i) {
        const std::string name = bestTimes.slots[i].name;
        EXPECT_TRUE(name.size() == 3 && std::all_of(name.begin(), name.end(), isupper)) << name;
        if (i > 0) { EXPECT_GT(bestTimes.slots[i].time, bestTimes.slots[i - 1].time + 20.0F); }
    }
    EXPECT_LT(bestTimes.slots[9].time, levelTime * static_cast<float>(shippedLevels().size()));
    ASSERT_TRUE(saveBestTimes());
    EXPECT_EQ(readFile(bestTimesFile), rivals);
}

struct Fault {
    std::string text;
    std::string start; // of the message
};

TEST(LevelFaults, AreReportedWithLineAndColumn) {
    const std::string colour = "1:11: expected a whole number from 0 to 0xffffffff after "
                               "\"fogcolor=\", not ";
    const Fault faults[] = {
        {"", "1:1: the file is empty"},
        {"fogcolor=12", "1:1: there must be a blank after"},
        {"fogcolor= 1\nroom", "2:1: unknown word \"room\""},
        {"fogcolor= -1", colour + "\"-1\""},
        {"fogcolor= \x1B[2J" + std::string(50, 'r'),
         colour + "\"?[2J" + std::string(36, 'r') + "...\""},
        {"holecount= 1" + std::string(maxTextSize - 14, '\n') + ".data",
         std::to_string(maxTextSize - 13) + ":1: the rest of the file cannot be read: it has more"},
        {"holecount= 100001", "1:12: expected a whole number from 0 to 100000 after"},
        {"holecount= 1\n.data\n 1 2 x 4 .end", "3:6: expected number 3 of the 4"},
        {"holecount= 1 .data 1 2 3 4 5 .end", "1:28: expected .end after 1 holes, not \"5\""},
        {"holecount= 0 .data .end\n", "1:20: the file goes on with a line break"},
    };
    const EmptyFolder folder;
    for (const Fault& fault : faults) {
        writeFile("a.lev", fault.text);
        LevelFileReport report;
        EXPECT_FALSE(startRun("a.lev", report)) << fault.text;
        const std::string message = faultMessage(report.fault);
        EXPECT_TRUE(message.starts_with(fault.start)) << message;
    }
}

TEST(LevelAuthors, AreWarnedOfWhatAPlayerWouldSuffer) {
    const Fault faults[] = {
        {"fogcolor= 0x3b75ce", "fogcolor= 0x3b75ce is not exact in 16 bits"},
        {"fogcolor= 0xffae5a", "the clock is hard to read on the sky of fogcolor=: distance "},
        {"marblecolor= 0xffc832", "the marble is hard to see on its ground: contrast 1."},
    };
    const EmptyFolder folder;
    for (const Fault& fault : faults) {
        writeFile("a.lev", "texturefile= " GLORBIX_GAME_DIR "/graphics/ground/tiles "
                           "fogcolor= 0x3a75ce marblecolor= 0x001080 " +
                               fault.text + " holecount= 1 .data 0 -6300 300 -90 .end");
        testing::internal::CaptureStdout();
        checkLevels({{"a.lev"}});
        const std::string printed = testing::internal::GetCapturedStdout();
        EXPECT_NE(printed.find(fault.start), std::string::npos) << printed;
    }
}

TEST(Drives, AreRefusedWithTheLineAndTheReason) {
    const std::string noRate = ":1: \"ticks\" takes one whole number, 10 to 10000";
    const Fault faults[] = {
        {"ticks 600000", noRate},
        {"ticks 60\n\n12up", ":3: expected \"ticks N\", \"time T\", \"digest N D\", or"},
        {"12 up f\x1Bly", ":1: unknown key \"f?ly\""},
        {"time 1 2", ":1: \"time\" takes one number"},
        {"digest 100 0x1", ":1: \"digest\" takes a number of ticks and"},
        {"999999 up\n2 down", ":2: more than 1000000 ticks in all"},
        {"ticks 10000\ntime 12.5\n1000000 up left", ""},
    };
    const EmptyFolder folder;
    std::string error;
    for (const Fault& fault : faults) {
        writeFile("a.keys", fault.text);
        KeyFile keys;
        EXPECT_EQ(readKeyFile("a.keys", keys, error), fault.start.empty()) << fault.text;
        EXPECT_TRUE(error.starts_with(fault.start.empty() ? "" : "a.keys" + fault.start)) << error;
    }
    for (const auto& [option, value] : {std::pair{"--tick", "60junk"}, std::pair{"--runs", "0"},
                                        std::pair{"--player", "bad"}, std::pair{"--seed", "2"}}) {
        EXPECT_EQ(driveLevel({{"any.lev", option, value}}), exitUsage) << option;
    }
}

TEST(Drives, ReplaceAFileOnlyWhenAsked) {
    const EmptyFolder folder;
    writeFile("a.lev", "holecount= 0 .data .end");
    std::vector<std::string> drive = {"a.lev", "--player", "up", "--keys", "a.keys"};
    EXPECT_EQ(driveLevel({drive}), exitOk);
    writeFile("a.keys", "mine");
    EXPECT_EQ(driveLevel({drive}), exitUsage);
    EXPECT_EQ(readFile("a.keys"), "mine");
    drive.emplace_back("--force");
    EXPECT_EQ(driveLevel({drive}), exitOk);
    EXPECT_TRUE(readFile("a.keys").starts_with("ticks 60\n"));
    EXPECT_FALSE(reasonNotToWrite(".", true).empty());
}

TEST(Drives, EndForAMarbleThatIsCaughtForever) {
    const EmptyFolder folder;
    writeFile("a.lev", "holecount= 1 .data 0 0 1e30 1 .end");
    LevelFileReport report;
    ASSERT_TRUE(startRun("a.lev", report));
    const Drive drive = driveToEnd(10, [](float) { return upKey; });
    EXPECT_FALSE(drive.end.done);
    EXPECT_EQ(drive.keys.ticks.size(), 1000U);
}

} // namespace
