// Damaged files: whatever the bytes, a loader answers yes or no and touches nothing else.
#include <cstring>
#include <random>

#include "app/resources.h"
#include "data/best_times.h"
#include "data/font.h"
#include "data/level_list.h"
#include "fakes/play.h"

namespace {

struct Damaged : Story {
    std::mt19937 random{20};

    std::size_t below(std::size_t n) { return random() % n; }

    // Some bytes changed, dropped or doubled.
    std::string damage(std::string content) {
        static const std::string odd = " \n\t0123456789-+.xXeE=_!\xFF" + std::string(1, '\0');
        for (std::size_t n = 1 + below(4); n > 0 && !content.empty(); --n) {
            const std::size_t at = below(content.size()), length = below(9);
            switch (below(4)) {
            case 0: content[at] = odd[below(odd.size())]; break;
            case 1: content.erase(at, length); break;
            case 2: content.insert(at, content.substr(below(content.size()), length)); break;
            default: content.resize(at);
            }
        }
        return content;
    }

    // Gives a loader damaged versions of a file.
    template <class Load>
    void feed(const std::string& name, Load load) {
        const std::string whole = readFile(name);
        for (int n = 0; n < 400; ++n) {
            writeFile(name, damage(whole));
            load();
        }
    }
};

} // namespace

TEST_F(Damaged, FilesNeverBringTheGameDown) {
    writeGameFiles(
        {"fogcolor= 0xFF00FF marblecolor= 010 holecount= 2 .data 1 2 3 4 -5e1 6 7.5 8 .end"});
    feed("maps/1.map", [] {
        if (!level.load("maps/1.map", marble)) { return; }
        EXPECT_TRUE(level.holeCount >= 0 && (level.holeCount == 0 || level.holes));
        EXPECT_NE(level.groundPoints, nullptr);
    });
    feed(levelListFile, [] {
        if (!loadLevelList()) { return; }
        ASSERT_GT(Game.levelCount, 0);
        const auto count = static_cast<std::size_t>(Game.levelCount);
        for (std::size_t i = 0; i < count; ++i) {
            EXPECT_NE(Game.levelFiles[i][0], '\0');
        }
    });
    feed(bestTimesFile, [] {
        EXPECT_TRUE(loadBestTimes());
        for (int i = 0; i < 10; ++i) {
            EXPECT_LT(std::strlen(bestTimes.slots[i].name), 256U);
        }
    });
    feed(fontMetricsFile, [] { font.load(fontBaseName, fontMetricsFile); });
    feed("graphics/font/font_8.bmp", [] { font.load(fontBaseName, "none"); });
}
