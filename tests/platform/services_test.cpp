// The small services: clock, files, the system's words for errors.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <unistd.h>

#include "platform/sdl/errors.h"
#include "platform/sdl_machine.h"

namespace fs = std::filesystem;

namespace {

LONGLONG counterNow() {
    LARGE_INTEGER counter = {};
    EXPECT_TRUE(QueryPerformanceCounter(&counter));
    return counter.QuadPart;
}

TEST(Clock, GoesOnBetweenAnyTwoCallsAtItsFrequency) {
    LARGE_INTEGER frequency = {};
    EXPECT_TRUE(QueryPerformanceFrequency(&frequency));
    const Uint64 before = SDL_GetPerformanceCounter(); // in nanoseconds
    const LONGLONG first = counterNow();
    LONGLONG last = first;
    for (int i = 0; i < 100'000; ++i) {
        const LONGLONG now = counterNow();
        ASSERT_GT(now, last);
        last = now;
    }
    SDL_Delay(20);
    const double seconds =
        static_cast<double>(counterNow() - first) / static_cast<double>(frequency.QuadPart);
    const double most = static_cast<double>(SDL_GetPerformanceCounter() - before) / 1e9;
    EXPECT_TRUE(seconds >= 0.02 && seconds <= most) << seconds;
}

HANDLE openFile(const std::string& name, DWORD access = GENERIC_READ,
                DWORD creation = OPEN_EXISTING) {
    return CreateFileA(name.c_str(), access, 0, nullptr, creation, 0, nullptr);
}

auto countOfOpenFiles() {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

// A folder of this process alone.
struct Files : testing::Test {
    Files() { fs::create_directories(folder); }
    ~Files() override { fs::remove_all(folder); }

    const std::string folder = fs::temp_directory_path() / ("glorbix-" + std::to_string(getpid()));
    const std::string file = folder + "/file";
};

TEST_F(Files, AreReadInPartsToTheirEnd) {
    std::ofstream(file, std::ios::binary) << std::string("ab\0\r\nf", 6);
    const auto before = countOfOpenFiles();
    const HANDLE handle = openFile(file);
    ASSERT_NE(handle, INVALID_HANDLE_VALUE);
    std::string all;
    char bytes[4] = {};
    for (const DWORD part : {4U, 2U, 0U}) {
        DWORD got = 99;
        EXPECT_TRUE(ReadFile(handle, bytes, 4, &got, nullptr));
        EXPECT_EQ(got, part);
        all.append(bytes, got);
    }
    EXPECT_EQ(all, std::string("ab\0\r\nf", 6));
    EXPECT_TRUE(CloseHandle(handle));
    EXPECT_EQ(countOfOpenFiles(), before);
}

TEST_F(Files, ThatCannotBeReadAreRefusedInWords) {
    const auto expectRefused = [](HANDLE handle, const std::string& why) {
        EXPECT_EQ(handle, INVALID_HANDLE_VALUE);
        EXPECT_NE(lastErrorText().find(why), std::string::npos) << lastErrorText();
    };
    expectRefused(openFile(file), "\"" + file + "\" cannot be read: No such file or directory.");
    expectRefused(openFile(folder), "it is a folder");
    std::ofstream(file) << "content";
    expectRefused(openFile(file, 0x40000000), "only for reading");
    expectRefused(openFile(file, GENERIC_READ, 2), "only existing files");
    expectRefused(CreateFileA(nullptr, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr),
                  "name");
    char byte = 0;
    const HANDLE broken = openFile("/proc/self/mem"); // nothing can be read at address 0
    for (const HANDLE handle : {broken, HANDLE{nullptr}, INVALID_HANDLE_VALUE}) {
        DWORD got = 99;
        EXPECT_FALSE(ReadFile(handle, &byte, 1, &got, nullptr));
        EXPECT_EQ(got, 0U);
        EXPECT_EQ(CloseHandle(handle), handle == broken ? TRUE : FALSE);
    }
}

std::string textOf(DWORD error, DWORD flags = 0x1100) {
    char* text = nullptr;
    const DWORD length =
        FormatMessageA(flags, nullptr, error, 0, reinterpret_cast<char*>(&text), 0, nullptr);
    std::string copy = text ? text : "";
    EXPECT_EQ(length, copy.size());
    EXPECT_EQ(LocalFree(text), nullptr);
    return copy;
}

TEST(Errors, KeepTheirWords) {
    setLastError("The first.");
    const DWORD first = GetLastError();
    setLastError("The second.");
    EXPECT_EQ(textOf(GetLastError()), "The second.");
    EXPECT_EQ(textOf(first), "The first.");
    setLastError("The first.");
    EXPECT_EQ(GetLastError(), first);
    EXPECT_EQ(lastErrorText(), "The first.");
    EXPECT_EQ(textOf(first + 2), "Error " + std::to_string(first + 2) + ".");
    EXPECT_EQ(textOf(0), "There is no error.");
    EXPECT_EQ(textOf(first, FORMAT_MESSAGE_FROM_SYSTEM), "");
    EXPECT_EQ(textOf(first, FORMAT_MESSAGE_ALLOCATE_BUFFER), "");
    EXPECT_EQ(FormatMessageA(0x1100, nullptr, first, 0, nullptr, 0, nullptr), 0U);
}

TEST(Errors, AreComplainedOfOnce) {
    testing::internal::CaptureStderr();
    for (const char* text : {"one", "two", "one"}) {
        complainOnce(text);
    }
    complain("two");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "glorbix: one\nglorbix: two\nglorbix: two\n");
}

} // namespace
