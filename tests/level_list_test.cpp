// The list of levels: what it says, and when it is refused.
#include "data/level_list.h"
#include "fakes/play.h"

using LevelList = Story;

TEST_F(LevelList, NamesTheLevelsInPlayingOrder) {
    writeFile(levelListFile, "\t0x3\r\none two\n\n  three");
    ASSERT_TRUE(loadLevelList());
    ASSERT_EQ(Game.levelCount, 3);
    EXPECT_STREQ(Game.levelFiles[0].get(), "one");
    EXPECT_STREQ(Game.levelFiles[1].get(), "two");
    EXPECT_STREQ(Game.levelFiles[2].get(), "three");
    for (const float time : Game.allLevelTimes()) {
        EXPECT_EQ(time, 45);
    }
}

TEST_F(LevelList, EndsDirectlyAfterItsLastName) {
    const std::string longest(255, 'n');
    const struct {
        std::string content;
        bool accepted;
    } cases[] = {{"3 one two three", true},
                 {"3 one two three\n", false},
                 {"3 one two three ", false},
                 {"3 one two", false},
                 {"3 one two three four", false},
                 {"0", false},
                 {"-2 one two", false},
                 {"", false},
                 {"many one", false},
                 {"99999999999 one", false},
                 {"2147483647 one", false},
                 {"1 " + longest, true},
                 {"1 " + longest + "n", false}};
    for (const auto& c : cases) {
        writeFile(levelListFile, c.content);
        EXPECT_EQ(loadLevelList(), c.accepted) << c.content;
    }
    std::filesystem::remove(levelListFile);
    EXPECT_FALSE(loadLevelList());
    EXPECT_FALSE(std::filesystem::exists(levelListFile));
    EXPECT_EQ(boxes(), Lines{});
}

TEST_F(LevelList, GivesUpWhenMemoryRunsOut) {
    writeFile(levelListFile, "2 one two");
    for (int nth = 1; nth <= 4; ++nth) { // times, names, the first name, the second
        failAllocation(1, nth);
        EXPECT_FALSE(loadLevelList()) << nth;
    }
    failAllocation(1, 0);
    EXPECT_TRUE(loadLevelList());
}
