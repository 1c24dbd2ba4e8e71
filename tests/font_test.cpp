// The font: its files, the glyphs that it draws, the room that they take.
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

TEST_F(FontOnScreen, MadeItsTexture) {
    EXPECT_EQ(drawn(),
              uploadOf(10, GL_INTENSITY, 256, 9, GL_CLAMP, GL_NEAREST, GL_NEAREST_MIPMAP_NEAREST));
}

TEST_F(FontOnScreen, DrawsAGlyphAsOneQuad) {
    machine.drawn.clear();
    font.setScale(0.5F);
    font.setColour(0.1F, 0.2F, 0.3F, 0.4F);
    font.drawGlyph('A', 320, 120); // columns 65 to 77, rows 0 to 33
    const GlCalls expected =
        calls(on(GL_TEXTURE_2D), call("glBindTexture", GL_TEXTURE_2D, 10), off(GL_DEPTH_TEST),
              off(GL_FOG), off(GL_CULL_FACE), on(GL_BLEND),
              call("glBlendFunc", GL_ONE, GL_ONE_MINUS_SRC_ALPHA),
              call("glTexEnvf", GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE),
              call("glBegin", GL_QUADS), call("glColor4f", 0.1, 0.2, 0.3, 0.4),
              call("glTexCoord2f", 65 / 255.0, 1), call("glVertex2f", 0, 0.5),
              call("glTexCoord2f", 77 / 255.0, 1), call("glVertex2f", 6 / 320.0, 0.5),
              call("glTexCoord2f", 77 / 255.0, 222 / 255.0),
              call("glVertex2f", 6 / 320.0, 0.5 - 16.5 / 240),
              call("glTexCoord2f", 65 / 255.0, 222 / 255.0),
              call("glVertex2f", 0, 0.5 - 16.5 / 240), call("glEnd"));
    EXPECT_EQ(drawn(), expected);
}

TEST_F(FontOnScreen, BreaksLinesAndLeavesGaps) {
    font.setScale(13.0F / 33);
    font.setPosition(100, 50);
    font.drawText("A B\nC\xE4\x7F"
                  "D");
    const double small = 13.0 / 33;
    const double c = testGlyphWidth('C');
    EXPECT_EQ(textsDrawn(), (std::vector<Text>{{"A B", 100, 50, small, white},
                                               {"C", 100, 63, small, white},
                                               {"D", 100 + (c + 20) * small, 63, small, white}}));
    EXPECT_NEAR(font.penX, 100 + (c + 20 + testGlyphWidth('D')) * small, 1e-3);
    EXPECT_EQ(font.textWidth(""), 0);
    EXPECT_NEAR(font.textWidth("C\xE4 D"), (c + 20 + testGlyphWidth('D')) * small, 1e-3);
    EXPECT_NEAR(font.textWidth("C\nCC\nC"), 2 * c * small, 1e-3); // the widest line
}

TEST_F(FontOnScreen, WritesNumbers) {
    const struct {
        float value;
        int decimals;
        const char* text;
    } cases[] = {{3.05F, 2, "3.05"}, {45, 2, "45.00"},    {2.999F, 2, "3.00"},
                 {7.9F, 0, "7"},     {0, 2, "0.00"},      {0.0F, 0, "0"},
                 {-3.7F, 0, "-3"},   {0.996F, 2, "1.00"}, {135.07F, 2, "135.07"},
                 {9.5F, 1, "9.5"},   {0.004F, 2, "0.00"}, {-0.25F, 2, "-0.25"}};
    for (const auto& c : cases) {
        machine.drawn.clear();
        font.drawNumber(c.value, c.decimals);
        ASSERT_EQ(textsDrawn().size(), 1U) << c.text;
        EXPECT_EQ(textsDrawn()[0].text, c.text);
    }
}

TEST_F(FontFile, ThatFailsLeavesNoTextOnTheScreen) {
    writeGameFiles();
    for (const char* metrics :
         {"", "65", "65 90", "65 90 ", "65 90 A 1 2 3", "65 90 A 1 2 3 4\n", "65 90 A 1 2 3 4 B",
          "65 90 A 1 2 x 4", "-5 90 A 1 2 3 4", "a 90 A 1 2 3 4", "65 90 A 1 2 3 4 B 1 2 3"}) {
        writeFile(fontMetricsFile, metrics);
        EXPECT_FALSE(font.load(fontBaseName, fontMetricsFile)) << metrics;
    }
    EXPECT_FALSE(font.load(fontBaseName, "none.dat"));
    EXPECT_EQ(boxes(), Lines{});
    std::filesystem::remove("graphics/font/font_8.bmp");
    machine.drawn.clear();
    EXPECT_FALSE(font.load(fontBaseName, fontMetricsFile));
    EXPECT_EQ(boxes(), Lines{"graphics/font/font_8.bmp | error | nobody"});
    font.drawText("A");
    EXPECT_EQ(font.penX, 0);
    EXPECT_EQ(drawn(), GlCalls{});
}

TEST_F(FontFile, TakesACharacterAndItsNumbersWithoutBlanks) {
    writeGameFiles();
    writeFile(fontMetricsFile, "0x21 0310 A1 2 3 4 5 5.5 6 7 8 B 9 0 4 1");
    ASSERT_TRUE(font.load(fontBaseName, fontMetricsFile));
    EXPECT_EQ(font.firstChar, 33);
    EXPECT_EQ(font.lastChar, 200);
    constexpr int letter = 'A', digit = '5';
    EXPECT_EQ(font.glyphLeft[letter], 1);
    EXPECT_EQ(font.glyphTop[letter], 2);
    EXPECT_EQ(font.glyphRight[letter], 3);
    EXPECT_EQ(font.glyphBottom[letter], 4);
    EXPECT_EQ(font.glyphLeft[digit], 5.5F);
    EXPECT_EQ(font.textWidth("\xC3"), 10);  // codes from 128 on count as negative
    EXPECT_EQ(font.textWidth("AB"), 2 - 5); // a glyph that goes back
}

TEST_F(FontFile, HasABaseNameOfAtMost249Bytes) {
    writeGameFiles();
    const std::string longest = "deep/" + std::string(244, 'f'), tooLong = longest + 'f';
    for (const std::string& base : {longest, tooLong}) {
        writeMipChain(base, 256, 9);
        EXPECT_EQ(font.load(base.c_str(), fontMetricsFile), base == longest);
    }
    EXPECT_EQ(boxes(), Lines{tooLong + " | error | nobody"});
}

TEST_F(FontFile, MayHavePicturesOfOtherSizes) {
    writeGameFiles();
    writeBitmap("graphics/font/font_8.bmp", 256, 256, 0x0B0000);
    EXPECT_TRUE(font.load(fontBaseName, fontMetricsFile));
    EXPECT_EQ(font.imageLevels[8][fontSize * fontSize * 3 - 3], 0x0B);
    writeBitmap("graphics/font/font_8.bmp", 257, 256);
    EXPECT_FALSE(font.load(fontBaseName, fontMetricsFile));
}
