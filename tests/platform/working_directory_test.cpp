// Where the game finds its data, and what becomes of the player's own folder.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "platform/sdl/working_directory.h"

namespace fs = std::filesystem;

namespace {

// Installed data and a player's home in a new folder; the test may leave the current folder.
struct WorkingDirectory : testing::Test {
    const fs::path before = fs::current_path();
    fs::path root, data, own;
    std::string why;

    WorkingDirectory() {
        std::string name = fs::temp_directory_path() / "glorbix_test_XXXXXX";
        root = fs::canonical(mkdtemp(name.data()));
        data = root / "share/glorbix";
        own = root / "home/.local/share/glorbix";
        for (const char* folder : {"maps", "graphics", "sounds"}) {
            fs::create_directories(data / folder);
        }
        std::ofstream(data / "maps/maplist.dat") << "1 maps/1.lev";
        setenv("HOME", (root / "home").c_str(), 1);
        unsetenv("XDG_DATA_HOME");
    }

    ~WorkingDirectory() override {
        fs::current_path(before);
        fs::remove_all(root);
    }

    void enter() { EXPECT_TRUE(enterPlayerFolder(data, why)) << why; }

    // What the game says on standard error while it enters.
    std::string complaintOnEntering() {
        testing::internal::CaptureStderr();
        enter();
        return testing::internal::GetCapturedStderr();
    }

    // Where a folder of the player's leads to.
    fs::path seen(const char* folder) const { return fs::canonical(own / folder); }
};

TEST_F(WorkingDirectory, IsThePlayersFolderWithLinksToTheData) {
    EXPECT_FALSE(findGameData({root, root / "none"}));
    EXPECT_EQ(findGameData({root / "none", data, root}), data);
    EXPECT_EQ(complaintOnEntering(), "");
    EXPECT_EQ(fs::current_path(), own);
    EXPECT_EQ(seen("maps"), data / "maps");
    EXPECT_EQ(seen("sounds"), data / "sounds");

    setenv("XDG_DATA_HOME", "data", 1); // not valid: it must be absolute
    fs::current_path(root);
    enter();
    EXPECT_EQ(fs::current_path(), own);
    EXPECT_FALSE(fs::exists(root / "data"));
    setenv("XDG_DATA_HOME", (root / "data").c_str(), 1);
    enter();
    EXPECT_EQ(fs::current_path(), root / "data/glorbix");
}

TEST_F(WorkingDirectory, FollowsAnotherInstallationButLeavesThePlayersOwnAlone) {
    enter();
    fs::create_directories(root / "mine/graphics");
    fs::remove(own / "graphics");
    fs::remove(own / "sounds");
    fs::create_directory_symlink(root / "mine/graphics", own / "graphics");
    fs::create_directory(own / "sounds");
    fs::copy(data, root / "other", fs::copy_options::recursive);
    data = root / "other"; // installed a second time, elsewhere
    EXPECT_EQ(complaintOnEntering(), "");
    EXPECT_EQ(seen("maps"), data / "maps");
    EXPECT_EQ(seen("graphics"), root / "mine/graphics");
    EXPECT_EQ(seen("sounds"), own / "sounds");

    fs::rename(data, root / "moved");
    data = root / "moved";
    fs::remove_all(root / "mine");
    EXPECT_NE(complaintOnEntering().find("graphics led nowhere"), std::string::npos);
    EXPECT_EQ(seen("maps"), data / "maps");
    EXPECT_EQ(seen("graphics"), data / "graphics");
}

TEST_F(WorkingDirectory, IsTheDataItselfWherePlayersCannotHaveAFolder) {
    std::ofstream(root / "file") << "not a folder";
    setenv("XDG_DATA_HOME", (root / "file").c_str(), 1);
    EXPECT_NE(complaintOnEntering().find("best times may be lost"), std::string::npos);
    EXPECT_EQ(fs::current_path(), data);

    unsetenv("XDG_DATA_HOME");
    unsetenv("HOME");
    fs::current_path(root);
    EXPECT_NE(complaintOnEntering().find("HOME"), std::string::npos);
    EXPECT_EQ(fs::current_path(), data);

    fs::current_path(root);
    fs::remove_all(data);
    EXPECT_FALSE(enterPlayerFolder(data, why));
    EXPECT_NE(why.find("cannot enter " + data.string()), std::string::npos) << why;
}

} // namespace
