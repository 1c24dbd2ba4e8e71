// The clock, the files, and the folder that the game runs in.
#include <filesystem>
#include <fstream>
#include <tuple>

#include <sys/stat.h>

#include "platform/regular_file.h"
#include "platform/sdl/working_directory.h"
#include "platform/sdl_machine.h"

namespace fs = std::filesystem;

namespace {

TEST(Clock, GoesOnBetweenAnyTwoCallsAtItsFrequency) {
    LARGE_INTEGER frequency, first, last;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&first);
    SDL_Delay(100);
    QueryPerformanceCounter(&last);
    EXPECT_GE(last.QuadPart - first.QuadPart, frequency.QuadPart / 10);
    EXPECT_LT(last.QuadPart - first.QuadPart, frequency.QuadPart * 10);
    QueryPerformanceCounter(&first);
    EXPECT_GT(first.QuadPart, last.QuadPart);
}

// Installed data and a player's home in a new folder; the test may leave the current folder.
struct Folders : InFolder {
    const fs::path before = fs::current_path();
    const fs::path root = fs::canonical(folder);
    fs::path data = root / "shäre d/glorbix";
    const fs::path own = root / "home/.local/share/glorbix";
    std::string why;

    Folders() {
        for (const char* name : {"maps", "graphics", "sounds"}) {
            fs::create_directories(data / name);
        }
        std::ofstream(data / "maps/maplist.dat") << "1 maps/1.lev";
        setenv("HOME", (root / "home").c_str(), 1);
        unsetenv("XDG_DATA_HOME");
    }

    ~Folders() override { fs::current_path(before); }

    // What the game says on standard error while it enters.
    std::string complaintOnEntering() {
        testing::internal::CaptureStderr();
        EXPECT_TRUE(enterPlayerFolder(data, why)) << why;
        return testing::internal::GetCapturedStderr();
    }

    fs::path seen(const char* name) const { return fs::canonical(own / name); }
};

HANDLE openFile(const fs::path& name, DWORD creation = OPEN_EXISTING, DWORD access = GENERIC_READ) {
    const char* fileName = name.empty() ? nullptr : name.c_str();
    return CreateFileA(fileName, access, 0, nullptr, creation, 0, nullptr);
}

TEST_F(Folders, HoldFilesThatAreReadToTheirEndOrNotAtAll) {
    std::ofstream(root / "file", std::ios::binary) << std::string("ab\0\r\nf", 6);
    const HANDLE handle = openFile(root / "file");
    char bytes[6] = {};
    DWORD got = 99;
    EXPECT_TRUE(ReadFile(handle, bytes, 4, &got, nullptr) && got == 4);
    EXPECT_TRUE(ReadFile(handle, bytes + 4, 4, &got, nullptr) && got == 2);
    EXPECT_TRUE(ReadFile(handle, bytes, 4, &got, nullptr) && got == 0);
    EXPECT_EQ(std::string(bytes, 6), std::string("ab\0\r\nf", 6));
    EXPECT_TRUE(CloseHandle(handle));

    EXPECT_EQ(openFile(root / "none"), INVALID_HANDLE_VALUE);
    EXPECT_NE(lastErrorWords().find("none\" cannot be read: No such file"), std::string::npos);
    EXPECT_EQ(openFile(root / "file", 2), INVALID_HANDLE_VALUE) << "a new one";
    EXPECT_EQ(openFile(""), INVALID_HANDLE_VALUE);
    EXPECT_EQ(openFile(root / "file", OPEN_EXISTING, GENERIC_READ >> 1), INVALID_HANDLE_VALUE)
        << "to write";
    EXPECT_EQ(lastErrorWords(9999), "Error 9999.");
    const HANDLE broken = openFile("/proc/self/mem"); // nothing can be read at address 0
    for (const HANDLE unread : {broken, HANDLE{nullptr}, INVALID_HANDLE_VALUE}) {
        got = 99;
        EXPECT_FALSE(ReadFile(unread, bytes, 1, &got, nullptr) || got != 0);
        EXPECT_EQ(CloseHandle(unread), unread == broken ? TRUE : FALSE);
    }
}

TEST_F(Folders, HoldFilesThatAreReadAsAWholeOrRefusedWithTheReason) {
    std::ofstream(root / "file") << std::string(70000, 'a'); // more than one block
    mkfifo((root / "pipe").c_str(), 0600);
    // the limit, the bytes that are read, and why not all
    const std::tuple<std::string, std::size_t, std::size_t, std::string> cases[] = {
        {root / "file", 70000, 70000, ""},
        {root / "file", 69999, 69999, "it has more than 69999 bytes"},
        {root, 9, 0, "it is a folder"},
        {root / "pipe", 9, 0, "it is not a regular file"},
        {"/dev/zero", 9, 0, "it is not a regular file"},
        {"/proc/self/mem", 9, 0, "Input/output error"},
        {"/proc/self/stat", 5, 5, "it has more than 5 bytes"}}; // its size is said to be 0
    for (const auto& [name, limit, size, reason] : cases) {
        std::vector<std::uint8_t> bytes(3);
        why.clear();
        EXPECT_EQ(readRegularFile(name, limit, bytes, why), reason.empty()) << name;
        EXPECT_EQ(why, reason) << name;
        EXPECT_EQ(bytes.size(), size) << name;
    }
}

TEST_F(Folders, OfThePlayerHaveLinksToTheData) {
    EXPECT_FALSE(findGameData({root, root / "none"}));
    EXPECT_EQ(findGameData({root / "none", data, root}), data);
    EXPECT_EQ(complaintOnEntering(), "");
    EXPECT_EQ(fs::current_path(), own);
    EXPECT_EQ(seen("maps"), data / "maps");
    EXPECT_EQ(seen("sounds"), data / "sounds");
    for (const auto& [home, entered] : // a relative one is not valid
         {std::pair(fs::path("data"), own), {root / "data", root / "data/glorbix"}}) {
        setenv("XDG_DATA_HOME", home.c_str(), 1);
        complaintOnEntering();
        EXPECT_EQ(fs::current_path(), entered);
    }
}

TEST_F(Folders, HaveRivalsForANewPlayerAndLeaveBestTimesAlone) {
    const auto timesAfterEntering = [&] {
        EXPECT_EQ(complaintOnEntering(), "");
        std::string times;
        std::getline(std::ifstream(own / "highScore.dat"), times);
        return times;
    };
    EXPECT_EQ(timesAfterEntering(), "") << "data without rivals";
    std::ofstream(data / "rivals.dat") << "165 IDA ";
    fs::permissions(data / "rivals.dat", fs::perms(0444));
    EXPECT_EQ(timesAfterEntering(), "165 IDA ");
    EXPECT_EQ(fs::status(own / "highScore.dat").permissions(), fs::perms(0644));
    std::ofstream(own / "highScore.dat") << "99 JOE ";
    EXPECT_EQ(timesAfterEntering(), "99 JOE ");
    fs::remove(own / "highScore.dat");
    fs::create_symlink(root / "other disk", own / "highScore.dat"); // not there at the moment
    EXPECT_EQ(timesAfterEntering(), "");
    EXPECT_FALSE(fs::exists(root / "other disk"));
}

TEST_F(Folders, FollowAnotherInstallationButLeaveThePlayersOwnAlone) {
    fs::create_directories(own / "mine");
    fs::create_directory_symlink("./mine", own / "graphics");
    fs::create_directory(own / "maps");
    complaintOnEntering();
    fs::rename(data, root / "moved"); // installed a second time, elsewhere
    data = root / "moved";
    fs::current_path(root);
    EXPECT_EQ(complaintOnEntering(), "");
    EXPECT_EQ(seen("maps"), own / "maps");
    EXPECT_EQ(seen("graphics"), own / "mine");
    EXPECT_EQ(seen("sounds"), data / "sounds");
    fs::remove(own / "mine");
    EXPECT_NE(complaintOnEntering().find("graphics led nowhere"), std::string::npos);
    EXPECT_EQ(seen("graphics"), data / "graphics");
}

TEST_F(Folders, ServeForAWhileWherePlayersCannotHaveTheirOwn) {
    setenv("XDG_DATA_HOME", "/proc/self/mem", 1); // no folder
    std::ofstream(data / "rivals.dat") << "165 IDA ";
    setenv("TMPDIR", "/proc", 1); // where nothing can be made
    complaintOnEntering();
    EXPECT_NE(why.find("Best times will not be saved: "), std::string::npos) << why;
    EXPECT_EQ(fs::current_path().parent_path(), "/dev/shm");
    EXPECT_TRUE(fs::exists("maps/maplist.dat") && fs::file_size("highScore.dat") == 8);
    unsetenv("TMPDIR");
    fs::rename(data / "rivals.dat", data / "highScore.dat");
    complaintOnEntering();
    EXPECT_EQ(fs::current_path(), data);
}

} // namespace
