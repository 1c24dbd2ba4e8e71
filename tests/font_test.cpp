// The font: its files, the glyphs that it draws, and their size.
#include "data/font.h"

#include <GL/gl.h>

#include "fakes/play.h"

namespace {

struct FontOnScreen : Story {
    FontOnScreen() {
        writeGameFiles();
        EXPECT_TRUE(font.load(fontBaseName, fontMetricsFile));
    }
};
using FontFile = Story;

constexpr std::array<double, 4> white = {1, 1, 1, 1};

} // namespace

TEST_F(FontOnScreen, BreaksLinesAndLeavesGaps) {
    // The last level of the texture.
    EXPECT_EQ(count({"glTexImage2D", 8, GL_INTENSITY, 1, 1, 0, GL_RGB, GL_UNSIGNED_BYTE, 9}), 1);
    machine.drawn.clear();
    font.setScale(13.0F / 33);
    font.setPosition(100, 50);
    font.drawText("! ~\nC\xE4\x7F" // with the first and the last that the font has
                  "D");
    const double small = 13.0 / 33;
    const double c = testGlyph('C').width;
    EXPECT_EQ(textsDrawn(), (std::vector<Text>{{"! ~", 100, 50, small, white},
                                               {"C", 100, 63, small, white},
                                               {"D", 100 + (c + 20) * small, 63, small, white}}));
    EXPECT_NEAR(font.penX, 100 + (c + 20 + testGlyph('D').width) * small, 1e-3);
    EXPECT_NEAR(font.textWidth("C\xE4 D"), (c + 20 + testGlyph('D').width) * small, 1e-3);
    EXPECT_NEAR(font.textWidth("C\nCC\nC"), 2 * c * small, 1e-3); // the widest line
}

TEST_F(FontOnScreen, WritesNumbers) {
    const struct {
        float value;
        int decimals;
        const char* text;
    } cases[] = {{3.05F, 2, "3.05"}, {45, 2, "45.00"},    {2.999F, 2, "3.00"},
                 {7.9F, 0, "7"},     {0, 2, "0.00"},      {0.0F, 0, "0"},
                 {-3.7F, 0, "-3"},   {0.996F, 2, "1.00"}, {-0.25F, 2, "-0.25"}};
    for (const auto& c : cases) {
        machine.drawn.clear();
        font.drawNumber(c.value, c.decimals);
        ASSERT_EQ(textsDrawn().size(), 1U) << c.text;
        EXPECT_EQ(textsDrawn()[0].text, c.text);
    }
}

TEST_F(FontFile, ThatFailsLeavesNoTextOnTheScreen) {
    writeGameFiles();
    for (const char* metrics : {"", "65 90 ", "65 90 A 1 2 x 4", "-5 90 A 1 2 3 4"}) {
        writeFile(fontMetricsFile, metrics);
        EXPECT_FALSE(font.load(fontBaseName, fontMetricsFile)) << metrics;
    }
    font.drawText("A");
    EXPECT_EQ(count("glVertex2f"), 0);
}

TEST_F(FontFile, TakesACharacterAndItsNumbersWithoutBlanks) {
    writeGameFiles();
    writeFile(fontMetricsFile, "0x21 0310 A1 2 3 4 5 5.5 6 7 8 B 9 0 4 1");
    ASSERT_TRUE(font.load(fontBaseName, fontMetricsFile));
    EXPECT_TRUE(font.firstChar == 33 && font.lastChar == 200);
    constexpr int letter = 'A', digit = '5';
    EXPECT_TRUE(font.glyphLeft[letter] == 1 && font.glyphTop[letter] == 2 &&
                font.glyphRight[letter] == 3 && font.glyphBottom[letter] == 4);
    EXPECT_EQ(font.glyphLeft[digit], 5.5F);
    EXPECT_EQ(font.textWidth("\xC3"), 10);  // codes from 128 on count as negative
    EXPECT_EQ(font.textWidth("AB"), 2 - 5); // a glyph that goes back
}

TEST_F(FontFile, MayHavePicturesOfOtherSizes) {
    writeGameFiles();
    writeBitmap("graphics/font/font_8.bmp", 256, 256, 0x0B0000);
    EXPECT_TRUE(font.load(fontBaseName, fontMetricsFile));
    EXPECT_EQ(font.imageLevels[8][fontSize * fontSize * 3 - 3], 0x0B);
    writeBitmap("graphics/font/font_8.bmp", 257, 256);
    EXPECT_FALSE(font.load(fontBaseName, fontMetricsFile));
}
