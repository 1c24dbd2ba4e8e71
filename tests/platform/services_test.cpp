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

TEST(Clock, GoesOnBetweenAnyTwoCalls) {
    LARGE_INTEGER frequency = {};
    LARGE_INTEGER before = {};
    LARGE_INTEGER after = {};
    EXPECT_TRUE(QueryPerformanceFrequency(&frequency));
    ASSERT_GE(frequency.QuadPart, 1'000'000) << "finer than any frame";
    EXPECT_TRUE(QueryPerformanceCounter(&before));
    const Uint64 start = SDL_GetPerformanceCounter();
    for (int i = 0; i < 100'000; ++i) {
        QueryPerformanceCounter(&after);
        ASSERT_GT(after.QuadPart, before.QuadPart);
        before = after;
    }
    SDL_Delay(20);
    QueryPerformanceCounter(&after);
    const auto seconds = static_cast<double>(after.QuadPart - before.QuadPart) /
                         static_cast<double>(frequency.QuadPart);
    const auto most = static_cast<double>(SDL_GetPerformanceCounter() - start) /
                      static_cast<double>(SDL_GetPerformanceFrequency());
    EXPECT_GE(seconds, 0.019);
    EXPECT_LE(seconds, most + 0.001);
}

// A folder of this process alone.
struct Files : testing::Test {
    Files() { fs::create_directories(folder); }
    ~Files() override { fs::remove_all(folder); }

    static HANDLE open(const std::string& name, DWORD access = GENERIC_READ,
                       DWORD creation = OPEN_EXISTING) {
        return CreateFileA(name.c_str(), access, 0, nullptr, creation, FILE_ATTRIBUTE_NORMAL,
                           nullptr);
    }
    static auto openFiles() {
        const fs::directory_iterator descriptors("/proc/self/fd");
        return std::distance(begin(descriptors), end(descriptors));
    }

    const fs::path folder =
        fs::temp_directory_path() / ("glorbix-files-test-" + std::to_string(getpid()));
    const std::string file = folder / "file";
};

TEST_F(Files, AreReadInPartsToTheirEnd) {
    std::ofstream(file, std::ios::binary) << std::string("ab\0\r\nf", 6);
    const auto before = openFiles();
    const HANDLE handle = open(file);
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
    EXPECT_TRUE(ReadFile(handle, bytes, 4, nullptr, nullptr));
    EXPECT_TRUE(CloseHandle(handle));
    EXPECT_EQ(openFiles(), before);
}

TEST_F(Files, ThatCannotBeReadAreRefusedInWords) {
    const auto expectRefused = [](HANDLE handle, const std::string& why) {
        EXPECT_EQ(handle, INVALID_HANDLE_VALUE);
        EXPECT_NE(lastErrorText().find(why), std::string::npos) << lastErrorText();
    };
    expectRefused(open(file), "\"" + file + "\" cannot be read: No such file or directory.");
    expectRefused(open(folder), "it is a folder");
    std::ofstream(file) << "content";
    expectRefused(open(file, 0x40000000), "only for reading");
    expectRefused(open(file, GENERIC_READ, 2), "only existing files");
    expectRefused(CreateFileA(nullptr, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr),
                  "no name");
    char byte = 0;
    DWORD got = 99;
    for (const HANDLE none : {HANDLE{nullptr}, INVALID_HANDLE_VALUE}) {
        EXPECT_FALSE(ReadFile(none, &byte, 1, &got, nullptr));
        EXPECT_EQ(got, 0U);
        EXPECT_FALSE(CloseHandle(none));
    }
    const HANDLE broken = open("/proc/self/mem"); // nothing can be read at address 0
    ASSERT_NE(broken, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(ReadFile(broken, &byte, 1, &got, nullptr));
    CloseHandle(broken);
}

std::string textOf(DWORD error,
                   DWORD flags = FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM) {
    char* text = nullptr;
    const DWORD length =
        FormatMessageA(flags, nullptr, error, 0, reinterpret_cast<char*>(&text), 0, nullptr);
    const std::string copy = text ? text : "";
    EXPECT_EQ(length, copy.size());
    EXPECT_EQ(LocalFree(text), nullptr);
    return copy;
}

TEST(Errors, KeepTheirWords) {
    EXPECT_EQ(textOf(0), "There is no error.");
    setLastError("The first.");
    const DWORD first = GetLastError();
    setLastError("The second.");
    EXPECT_NE(GetLastError(), first);
    EXPECT_EQ(textOf(GetLastError()), "The second.");
    EXPECT_EQ(textOf(first), "The first.");
    setLastError("The first.");
    EXPECT_EQ(GetLastError(), first);
    EXPECT_EQ(lastErrorText(), "The first.");
    EXPECT_EQ(textOf(123456), "Error 123456.");
    EXPECT_EQ(textOf(first + 2), "Error " + std::to_string(first + 2) + ".");
    EXPECT_EQ(textOf(first, FORMAT_MESSAGE_FROM_SYSTEM), "");
    EXPECT_EQ(textOf(first, FORMAT_MESSAGE_ALLOCATE_BUFFER), "");
    EXPECT_EQ(FormatMessageA(0x1100, nullptr, first, 0, nullptr, 0, nullptr), 0U);
}

TEST(Errors, AreComplainedOfOnce) {
    testing::internal::CaptureStderr();
    complainOnce("one");
    complainOnce("two");
    complainOnce("one");
    complain("three");
    complain("three");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "glorbix: one\nglorbix: two\nglorbix: three\nglorbix: three\n");
}

} // namespace
