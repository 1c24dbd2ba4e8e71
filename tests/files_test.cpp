// The files that the game reads: words and numbers, the list of levels, bitmaps.
#include <clocale>
#include <cstdlib>

#include "app/bitmap_file.h"
#include "data/best_times.h"
#include "data/level_list.h"
#include "data/tokens.h"
#include "fakes/play.h"

namespace {

struct Words : Story {
    TokenReader reader;

    bool open(const std::string& content) {
        writeFile("words.txt", content);
        reader = TokenReader();
        return reader.open("words.txt");
    }

    // Expects each text to be a number of this value, and none of `refused` to be one.
    template <class Number>
    void expectNumbers(bool (TokenReader::*read)(Number&),
                       const std::vector<std::pair<std::string, Number>>& taken,
                       const Lines& refused) {
        Number number = 0;
        for (const auto& [text, value] : taken) {
            EXPECT_TRUE(open(text) && (reader.*read)(number)) << text;
            EXPECT_EQ(number, value) << text;
        }
        for (const std::string& text : refused) {
            EXPECT_TRUE(open(text + " 1"));
            EXPECT_FALSE((reader.*read)(number) || (reader.*read)(number)) << text;
        }
    }
};

using LevelList = Story;

// Reads into a buffer of 2 x 2 pixels with a guard after it.
struct Bitmap : Story {
    std::vector<std::uint8_t> pixels = std::vector<std::uint8_t>(12 + 100, 9);

    bool read(const char* name = "a.bmp") { return readBitmapOfSize(name, 2, 2, pixels.data()); }

    static void changeByte(std::size_t offset, int value) {
        std::string file = readFile("a.bmp");
        file[offset] = static_cast<char>(value);
        writeFile("a.bmp", file);
    }
};

} // namespace

TEST_F(Words, AreNumbersOnlyAsAWhole) {
    const std::vector<std::pair<std::string, std::int32_t>> integers = {
        {"+3", 3},      {"-3", -3},  {"0x1F", 31},
        {"-0X10", -16}, {"+010", 8}, {"-2147483648", INT32_MIN}};
    const std::vector<std::pair<std::string, float>> fractions = {
        {"1.5", 1.5F}, {"+.5", 0.5F}, {"-2.", -2}, {"-1e1", -10}, {"1E+2", 100}, {"-1e-999", 0}};
    expectNumbers(&TokenReader::readInteger, integers,
                  {"3x", "3.5", "08", "0x", "-", "+", "--1", "2147483648"});
    expectNumbers<std::uint32_t>(&TokenReader::readUnsigned, {{"-0", 0}}, {"-1", "4294967296"});
    expectNumbers(&TokenReader::readFloat, fractions,
                  {"1x", "1.2.3", "1e", "-", "+", "-+1", ".", "1,5", "nan", "inf", "1e99", "0x1"});
}

TEST_F(Words, HoldNoZeroBytesAndAreReadUpToTheGreatestSize) {
    char token[tokenCapacity];
    EXPECT_TRUE(open(std::string("br\0ken", 6)));
    EXPECT_FALSE(reader.readToken(token));
    ASSERT_TRUE(open("a" + std::string(maxTextSize - 2, ' ') + "b"));
    EXPECT_TRUE(reader.readToken(token) && reader.readToken(token) && reader.atEnd());
    ASSERT_TRUE(open("a" + std::string(maxTextSize - 2, ' ') + "bc"));
    EXPECT_TRUE(reader.readToken(token) && !reader.cutOff && !reader.readToken(token));
    EXPECT_TRUE(reader.cutOff && reader.why == "it has more than 4194304 bytes") << reader.why;
}

#ifndef _WIN32
TEST_F(Words, HaveADecimalPointInEveryLanguage) {
    setenv("LOCPATH", ".", 1);
    if (std::system("localedef -i de_DE -f UTF-8 ./comma") != 0 ||
        std::setlocale(LC_NUMERIC, "comma") == nullptr ||
        *std::localeconv()->decimal_point != ',') {
        GTEST_SKIP() << "there is no language with a decimal comma";
    }
    float number = 0;
    EXPECT_TRUE(open("1.5") && reader.readFloat(number) && number == 1.5F);
    bestTimes.slots[0].time = 97.5F;
    EXPECT_TRUE(saveBestTimes() && readFile(bestTimesFile).starts_with("97.5 "));
    std::setlocale(LC_NUMERIC, "C");
}
#endif

TEST_F(LevelList, EndsDirectlyAfterItsLastName) {
    const std::string one = "1 " + std::string(255, 'n');
    const Lines taken = {"\t0x3\r\none\vtwo\n  \fthree", one};
    Lines lists = {"3 one two three ", "3 one two", "3 one two three four", "0",
                   "-2 one two",       "",          "2147483647 one",       one + "n"};
    lists.insert(lists.begin(), taken.begin(), taken.end());
    for (std::size_t i = 0; i < lists.size(); ++i) {
        writeFile(levelListFile, lists[i]);
        EXPECT_EQ(loadLevelList(), i < taken.size()) << lists[i];
        Game.clearLevelTimes(); // of all levels, or of none
        EXPECT_EQ(Game.levelCount > 0 && Game.levelTimes[0] == levelTime, i < taken.size());
    }
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Bitmap, IsReadAsRedGreenBlue) {
    writeBitmap("a.bmp", 2, 2, 0x030201);
    for (const std::size_t offset : {0U, 10U, 14U, 30U, 53U}) {
        changeByte(offset, 0x55); // only the size and the depth count
    }
    changeByte(54, 7); // the first pixel's blue
    ASSERT_TRUE(read());
    pixels.resize(14);
    EXPECT_EQ(pixels, (std::vector<std::uint8_t>{3, 2, 7, 3, 2, 1, 3, 2, 1, 3, 2, 1, 9, 9}));
    pixels.assign(12, 9);
    std::filesystem::resize_file("a.bmp", 54 + 3); // the buffer keeps what it held
    ASSERT_TRUE(read());
    EXPECT_TRUE(pixels[0] == 3 && pixels[2] == 7 && pixels[3] == 9);
}

TEST_F(Bitmap, OfAnotherShapeIsRefusedUnlessItFits) {
    const struct {
        const char* shape;
        std::size_t offset;
        int value;
        bool fits; // where any size is taken
    } cases[] = {{"too wide", 18, 3, false},    {"too high", 23, 1, false},
                 {"top down", 25, 255, false},  {"not 24 bits", 28, 32, false},
                 {"enormous", 21, 0x7F, false}, {"smaller", 18, 1, true},
                 {"no pixels", 18, 0, true}};
    for (const auto& c : cases) {
        writeBitmap("a.bmp", 2, 2, 0x090909);
        changeByte(c.offset, c.value);
        EXPECT_FALSE(read()) << c.shape;
        EXPECT_EQ(readBitmap("a.bmp", pixels.data(), 12), c.fits) << c.shape;
    }
    for (const int value : {0x7F, 0xFF}) { // 4 * 10^18 pixels, both sizes negative
        changeByte(21, value);
        changeByte(25, value);
        EXPECT_FALSE(readBitmap("a.bmp", pixels.data(), 12));
    }
    writeFile("a.bmp", "BM");
    EXPECT_FALSE(read() || read("none.bmp"));
    EXPECT_EQ(pixels, std::vector<std::uint8_t>(pixels.size(), 9));
    writeBitmap("a.bmp", 4, 1, 0x010203);
    EXPECT_TRUE(readBitmap("a.bmp", pixels.data(), 12));
    EXPECT_TRUE(pixels[11] == 3 && pixels[12] == 9);
    EXPECT_FALSE(read()); // as many pixels, but not of that shape
    failNext("CloseHandle");
    EXPECT_FALSE(readBitmap("a.bmp", pixels.data(), 12));
}
