// The ten best runs: their file, the place of a new one, its name, and the table on the screen.
#include "data/best_times.h"

#ifndef _WIN32
#include <sys/resource.h>
#endif

#include <csignal>
#include <fstream>

#include "app/resources.h"
#include "data/font.h"
#include "fakes/play.h"

namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
constexpr const char* missing = "Windows limits no file's size, and has no links in folders";
struct FullDisk {};
#else
constexpr const char* missing = nullptr;

// For its lifetime no file may be longer than a thousand bytes.
struct FullDisk {
    rlimit before = {};

    FullDisk() {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit small = {1000, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }
};
#endif

struct TenBest : Started<3> {
    // Ends a run of three levels with these times.
    static void finish(float a, float b, float c) {
        startGame();
        pressKeys({VK_F1, VK_F1});
        Game.levelTimes[0] = a;
        Game.levelTimes[1] = b;
        Game.levelTimes[2] = c;
        pressKey(VK_F1);
    }

    static void type(std::initializer_list<int> keys) {
        for (const int key : keys) {
            pressKey(key);
            tick(0.1);
        }
    }

    // Saves and expects a failure. Returns the reason on standard error.
    static std::string failedSave() {
        [[maybe_unused]] const FullDisk disk;
        testing::internal::CaptureStderr();
        EXPECT_FALSE(saveBestTimes());
        const std::string line = testing::internal::GetCapturedStderr();
        const std::string start = "glorbix: highScore.dat: the best times are not saved: ";
        EXPECT_TRUE(line.starts_with(start)) << line;
        return line.substr(std::min(line.size(), start.size()));
    }

    static Lines names() {
        Lines found;
        for (int i = 0; i < 10; ++i) {
            found.emplace_back(bestTimes.slots[i].name);
        }
        return found;
    }
};

const std::string tenRecords = "97.5 abc 123.457 d_e 135 f 136 g 137 h 138 i 139 j 140 k 141 l "
                               "1e+06 m ";

} // namespace

TEST_F(TenBest, ReadBackAsTheyWereSaved) {
    writeFile("highScore.dat", "\n" + tenRecords + "\nwhatever follows 7");
    loadBestTimes();
    EXPECT_TRUE(bestTimes.slots[0].time == 97.5F && bestTimes.slots[9].time == 1e6F);
    EXPECT_EQ(names(), (Lines{"abc", "d_e", "f", "g", "h", "i", "j", "k", "l", "m"}));
    bestTimes.slots[1].time = 123.4567F;
    ASSERT_TRUE(saveBestTimes());
    EXPECT_EQ(readFile("highScore.dat"), tenRecords);
    EXPECT_EQ(boxes(), Lines{});
}

TEST_F(TenBest, StartAgainWithoutAWholeFile) {
    const std::string nine = tenRecords.substr(0, tenRecords.find("1e+06"));
    writeFile("rivals.dat", tenRecords); // they are no concern of the game itself
    for (const std::string& content :
         {std::string(), nine, nine + "150", nine + "x m", nine + "nan m", nine + "1e99 m",
          nine + "150 " + std::string(256, 'n'), std::string("no file")}) {
        writeFile("highScore.dat", content);
        if (content == "no file") { std::filesystem::remove("highScore.dat"); }
        machine.lines.clear();
        EXPECT_TRUE(loadBestTimes());
        EXPECT_EQ(boxes(), Lines{"Creating new highScores file | Notice | nobody"});
        EXPECT_EQ(names(), Lines(10, "aaa")) << content;
        EXPECT_EQ(bestTimes.slots[9].time, 135);
    }
    EXPECT_FALSE(std::filesystem::exists("highScore.dat"));
    writeFile("highScore.dat", nine + "150 " + std::string(255, 'n'));
    loadBestTimes();
    EXPECT_EQ(names()[9], std::string(255, 'n'));
}

TEST_F(TenBest, ReplaceTheOldFileAsAWhole) {
    if (missing != nullptr) { GTEST_SKIP() << missing; }
    const std::string before = readFile("highScore.dat");
    writeFile("other.dat", "another file");
    fs::create_symlink("other.dat", "highScore.dat.new"); // no save of ours made that
    fs::permissions("highScore.dat", fs::perms(0640));
    std::ifstream reader("highScore.dat");
    bestTimes.slots[0].time = 1;
    ASSERT_TRUE(saveBestTimes());
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), before);
    EXPECT_EQ(readFile("other.dat"), "another file");
    EXPECT_EQ(fs::status("highScore.dat").permissions(), fs::perms(0640));

    writeFile("highScore.dat.new", std::string(9000, '9')); // a save that was killed
    writeFile("links/plain", "a new file");
    fs::create_directory("kept");
    fs::rename("highScore.dat", "kept/a.dat"); // the player has moved it
    fs::create_symlink("links/second", "highScore.dat");
    fs::create_symlink("../kept/a.dat", "links/second");
    for (const float time : {2.0F, 3.0F}) {
        bestTimes.slots[0].time = time;
        ASSERT_TRUE(saveBestTimes());
        EXPECT_TRUE(fs::is_symlink("highScore.dat") && fs::is_symlink("links/second"));
        EXPECT_TRUE(readFile("kept/a.dat").starts_with(std::to_string(int(time)) + " aaa "));
        EXPECT_EQ(fs::status("kept/a.dat").permissions(),
                  time == 2 ? fs::perms(0640) : fs::status("links/plain").permissions());
        fs::remove("kept/a.dat"); // the links stay, and saving creates the file again
    }
    EXPECT_TRUE(fs::is_empty("kept"));
}

TEST_F(TenBest, AreOverwrittenWhereNoFileCanBeMade) {
    fs::create_directory("highScore.dat.new");
    for (const std::string& name : {std::string(200, 'n'), std::string("b")}) {
        std::snprintf(bestTimes.slots[9].name, tokenCapacity, "%s", name.c_str());
        ASSERT_TRUE(saveBestTimes());
        EXPECT_TRUE(readFile("highScore.dat").ends_with("180 iii 190 " + name + " "));
    }
    fs::remove("highScore.dat.new");
    const std::ifstream reader(
        "highScore.dat"); // on Windows no file takes the place of an open one
    ASSERT_TRUE(saveBestTimes());
    EXPECT_FALSE(fs::exists("highScore.dat.new"));
}

TEST_F(TenBest, LoseNothingOnAFullDisk) {
    if (missing != nullptr) { GTEST_SKIP() << missing; }
    const std::string before = readFile("highScore.dat");
    for (BestTimeEntry& entry : bestTimes.slots) {
        std::snprintf(entry.name, tokenCapacity, "%s", std::string(250, 'n').c_str());
    }
    for (const bool roomForAFile : {true, false}) {
        if (!roomForAFile) { fs::create_directory("highScore.dat.new"); }
        EXPECT_EQ(failedSave(), "File too large\n");
        EXPECT_EQ(readFile("highScore.dat"), before);
        EXPECT_NE(fs::exists("highScore.dat.new"), roomForAFile);
    }
    fs::remove("highScore.dat.new");
    fs::remove("highScore.dat");
    EXPECT_EQ(failedSave(), "File too large\n");
    EXPECT_FALSE(fs::exists("highScore.dat") || fs::exists("highScore.dat.new"));
}

TEST_F(TenBest, WorkWithoutAFileWhereItsNameIsTaken) {
    if (missing != nullptr) { GTEST_SKIP() << missing; }
    for (const char* taker : {"/dev/full", "maps"}) {
        fs::remove("highScore.dat");
        fs::create_symlink(taker, "highScore.dat");
        EXPECT_TRUE(loadBestTimes());
        EXPECT_EQ(failedSave(), "it is not a file\n");
    }
    EXPECT_EQ(boxes(), Lines(2, "Creating new highScores file | Notice | nobody"));
}

TEST_F(TenBest, LeaveOutARunThatIsSlower) {
    for (BestTimeEntry& entry : bestTimes.slots) {
        entry.time = 134;
    }
    finish(45, 45, 45);
    EXPECT_TRUE(Game.screen == Screen::BestTimes && Game.newBestEntry == -1 && Game.stopped);
    EXPECT_EQ(names()[9], "jjj");
}

TEST_F(TenBest, AskForANameOfThreeLetters) {
    finish(30, 30, 30);
    machine.lines.clear();
    tick(0.1);
    type({VK_RETURN, VK_SPACE, '7', 64, 123, 255});
    EXPECT_EQ(linesOf("MessageBeep"), Lines(6, "10000"));
    EXPECT_EQ(names()[0], "_");
    type({'J'});
    EXPECT_EQ(names()[0], "J_");
    type({122});
    EXPECT_EQ(names()[0], "Jz_");
    ticks(3, 0.1);
    EXPECT_EQ(Game.screen, Screen::NameEntry);
    type({'E'});
    EXPECT_EQ(names()[0], "JzE");
    EXPECT_EQ(Game.screen, Screen::BestTimes);
    EXPECT_EQ(sounds(), Lines(3, "sounds/menu.wav"));
    EXPECT_EQ(Game.newBestEntry, 0);

    finish(30, 30, 29);
    type({'A', VK_ESCAPE, VK_DOWN, VK_RETURN}); // the player looks at the table instead
    EXPECT_EQ(Game.screen, Screen::BestTimes);
    finish(30, 30, 28); // the next name still starts with its first letter
    type({'B'});
    EXPECT_EQ(names()[0], "B_");
    EXPECT_EQ(names()[2], "JzE");
}

TEST_F(TenBest, AreShownBesideTheRun) {
    finish(40.25F, 45, 45);
    tick(0.1);
    type({'M', 'A', 'X'});
    tick(0.1);
    const double small = 13.0 / 33;
    const std::array<double, 4> red = {1, 0, 0, 1}, cyan = {0, 1, 1, 1}, blue = {0, 0, 1, 1},
                                grey = {200 / 255.0, 200 / 255.0, 200 / 255.0, 1};
    std::vector<Text> expected = {
        {"Level 1:", 0, 0, small, red},  {"Level 2:", 0, 13, small, red},
        {"Level 3:", 0, 26, small, red}, {"40.25", 80, 0, small, red},
        {"45.00", 80, 13, small, red},   {"45.00", 80, 26, small, red},
        {"------", 80, 39, small, red},  {"total", 0, 52, small, red},
        {"130.25", 80, 52, small, red},  {"Best Times", 205, 10, 1, cyan}};
    const char* times[] = {"100.00", "110.00", "120.00", "130.00", "130.25",
                           "140.00", "150.00", "160.00", "170.00", "180.00"};
    const auto column = [&](double x, const auto& textOf) {
        for (std::size_t i = 0; i < 10; ++i) {
            expected.push_back(
                {textOf(i), x, 80.0 + 33 * static_cast<int>(i), 1, i == 4 ? red : grey});
        }
    };
    column(255, [&](std::size_t i) { return times[i]; });
    column(140, [](std::size_t i) { return std::to_string(i + 1); });
    column(450, [](std::size_t i) { return names()[i]; });
    const char* footer = "press <space> to return"; // it is centred
    font.setScale(13.0F / 33);
    expected.push_back({footer, 320 - font.textWidth(footer) / 2, 460, small, blue});
    EXPECT_EQ(textsDrawn(), expected);
    EXPECT_EQ(names()[4], "MAX");

    bestTimes.slots[7].time = 130.25F; // an equal time is red as well
    tick(0.1);
    EXPECT_EQ(textsDrawn()[17].colour, red);
}
