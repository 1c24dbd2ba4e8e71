// Bitmap files: what is read of them, and that nothing is ever written past the picture.
#include "app/bitmap_file.h"

#include <algorithm>

#include "fakes/play.h"

namespace {

// Reads into a buffer of 2 x 2 pixels with a guard behind it.
struct Bitmap : Story {
    std::vector<std::uint8_t> pixels = std::vector<std::uint8_t>(12 + 100, 9);

    bool read(const char* name = "a.bmp") { return readBitmapOfSize(name, 2, 2, pixels.data()); }
    bool bufferIsUntouched() const { return pixels == std::vector<std::uint8_t>(pixels.size(), 9); }
};

void changeByte(std::size_t offset, int value) {
    std::string file = readFile("a.bmp");
    file[offset] = static_cast<char>(value);
    writeFile("a.bmp", file);
}

} // namespace

TEST_F(Bitmap, TurnsBlueGreenRedAround) {
    writeBitmap("a.bmp", 2, 2, 0x030201);
    changeByte(54, 7); // the first pixel's blue
    ASSERT_TRUE(read());
    const std::vector<std::uint8_t> expected = {3, 2, 7, 3, 2, 1, 3, 2, 1, 3, 2, 1, 9, 9};
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), pixels.begin()));
}

TEST_F(Bitmap, LooksOnlyAtSizeAndDepth) {
    writeBitmap("a.bmp", 2, 2);
    for (const std::size_t offset : {0U, 10U, 14U, 30U, 53U}) {
        changeByte(offset, 0x55);
    }
    EXPECT_TRUE(read());
}

TEST_F(Bitmap, OfAnotherShapeIsRefusedUnlessItFits) {
    const struct {
        const char* shape;
        std::size_t offset;
        int value;
        bool fits; // where any size is taken
    } cases[] = {{"too wide", 18, 3, false},   {"too high", 23, 1, false},
                 {"top down", 25, 255, false}, {"not 24 bits", 28, 32, false},
                 {"8 bits", 28, 8, false},     {"enormous", 21, 0x7F, false},
                 {"smaller", 18, 1, true},     {"no pixels", 18, 0, true}};
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
    EXPECT_FALSE(read());
    EXPECT_FALSE(read("none.bmp"));
    EXPECT_TRUE(bufferIsUntouched());
    writeBitmap("a.bmp", 4, 1, 0x010203);
    EXPECT_TRUE(readBitmap("a.bmp", pixels.data(), 12));
    EXPECT_TRUE(pixels[9] == 1 && pixels[11] == 3 && pixels[12] == 9);
}

TEST_F(Bitmap, ThatEndsEarlyKeepsWhatTheBufferHeld) {
    writeBitmap("a.bmp", 2, 2, 0x030201);
    std::filesystem::resize_file("a.bmp", 54 + 3);
    ASSERT_TRUE(read());
    EXPECT_EQ(pixels[0], 3);
    EXPECT_EQ(pixels[2], 1);
    EXPECT_EQ(pixels[3], 9);
}

TEST_F(Bitmap, ThatCannotBeReadOrClosedIsRefused) {
    writeBitmap("a.bmp", 2, 2, 0x030201);
    for (int nth = 0; nth < 3; ++nth) { // both headers, the pixels
        failNext("ReadFile", nth);
        EXPECT_FALSE(read()) << nth;
    }
    EXPECT_TRUE(bufferIsUntouched());
    failNext("CloseHandle");
    EXPECT_FALSE(read());
    EXPECT_EQ(pixels[0], 1); // the bytes are not exchanged
}
