// The shipped courses can be played: an automatic driver, which has nothing but the five keys,
// reaches every goal in time and without a catch, and recorded drives still end as they did.
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "data/level_list.h"
#include "fakes/game_files.h"
#include "state/game.h"
#include "tools/level/command_line.h"
#include "tools/level/drive.h"
#include "tools/level/driver.h"
#include "tools/level/fault_text.h"
#include "tools/level/return_spots.h"

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

    std::string keyFile() const {
        return GLORBIX_DRIVES_DIR "/" + std::filesystem::path(GetParam()).stem().string() + ".keys";
    }
};

std::string nameOf(const testing::TestParamInfo<std::string>& info) {
    return std::filesystem::path(info.param).stem().string();
}

INSTANTIATE_TEST_SUITE_P(Shipped, Course, testing::ValuesIn(shippedLevels()), nameOf);

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

TEST_P(Course, EndsARecordedDriveToTheLastBit) {
    KeyFile keys;
    std::string error;
    ASSERT_TRUE(readKeyFile(keyFile(), keys, error)) << error;
    const Drive drive = replay(keys);
    EXPECT_TRUE(drive.end.done);
    EXPECT_EQ(drive.keys.time, keys.time) << "physics or course have changed: record it again";
}

TEST_P(Course, GivesEveryMarbleBackAndIsGood) {
    for (const ReturnSpot& back : findReturnSpots()) {
        EXPECT_TRUE(back.found) << "hole " << back.hole + 1;
    }
    EXPECT_EQ(checkLevels({{GetParam()}}), exitOk);
}

// A file of this test run, while it lives.
struct HandWritten {
    std::string name = testing::TempDir() + "glorbix_" + std::to_string(getpid());

    ~HandWritten() { std::remove(name.c_str()); }
    void write(const std::string& text) const { std::ofstream(name, std::ios::binary) << text; }
};

struct Fault {
    const char* text;
    std::string told; // the beginning of what an author reads
};

TEST(LevelAuthors, AreToldLineAndColumnOfAFault) {
    const std::string colour = "1:11: expected a whole number from 0 to 0xffffffff after "
                               "\"fogcolor=\", not ";
    const Fault faults[] = {
        {"", "1:1: the file is empty"},
        {"fogcolor=12", "1:1: there must be a blank after"},
        {"fogcolor= 1\nroom", "2:1: unknown word \"room\""},
        {"fogcolor= -1", colour + "\"-1\""},
        {"fogcolor= 0x100000000", colour + "\"0x100000000\""},
        {"marblecolor=", "1:13: the file ends after \"marblecolor=\""},
        {"holecount= 100001", "1:12: expected a whole number from 0 to 100000 after"},
        {"holecount= 1\n.data\n 1 2 x 4 .end", "3:6: expected number 3 of the 4"},
        {"holecount= 1 .data 1 2 3 4 5 .end", "1:28: expected .end after 1 holes, not \"5\""},
        {"holecount= 0 .data .end\n", "1:20: the file goes on with a line break"},
    };
    const HandWritten file;
    for (const Fault& fault : faults) {
        file.write(fault.text);
        LevelFileReport report;
        EXPECT_FALSE(startRun(file.name.c_str(), report)) << fault.text;
        const std::string told = faultMessage(report.fault);
        EXPECT_TRUE(told.starts_with(fault.told)) << told;
    }
}

TEST(Drives, AreRefusedWithTheLineAndTheReason) {
    const std::string noRate = ":1: \"ticks\" takes one whole number, 10 to 10000";
    const Fault faults[] = {
        {"ticks 600000", noRate},
        {"ticks 60 junk", noRate},
        {"ticks 60\n\n12up", ":3: expected \"ticks N\", \"time T\", or a number of ticks"},
        {"12 up fly", ":1: unknown key \"fly\""},
        {"time 1 2", ":1: \"time\" takes one number"},
        {"999999 up\n2 down", ":2: more than 1000000 ticks in all"},
        {"ticks 10000\ntime 12.5\n1000000 up left", ""},
    };
    const HandWritten file;
    KeyFile keys;
    std::string error;
    for (const Fault& fault : faults) {
        file.write(fault.text);
        keys = {};
        EXPECT_EQ(readKeyFile(file.name, keys, error), fault.told.empty()) << fault.text;
        EXPECT_TRUE(error.starts_with(fault.told.empty() ? "" : file.name + fault.told)) << error;
    }
    EXPECT_FALSE(readKeyFile("/", keys, error));
    EXPECT_EQ(driveLevel({{"any.lev", "--tick", "60junk"}}), exitUsage);
}

TEST(Drives, EndForAMarbleThatIsCaughtForever) {
    const HandWritten file;
    file.write("holecount= 1 .data 0 0 1e30 1 .end");
    LevelFileReport report;
    ASSERT_TRUE(startRun(file.name.c_str(), report));
    const Drive drive = driveToEnd(10, [](float) { return upKey; });
    EXPECT_FALSE(drive.end.done);
    EXPECT_EQ(drive.keys.ticks.size(), 1000U);
}

} // namespace
