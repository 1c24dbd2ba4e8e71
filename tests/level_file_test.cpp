// Level files: what they set, and when and with which message they are refused.
#include <GL/gl.h>
#include <array>

#include "data/level_file.h"
#include "fakes/play.h"

namespace {

struct LevelFile : Story {
    LevelFile() { writeMipChain("ground", groundTextureSize, groundTextureLevels); }

    static bool load(const std::string& text) {
        writeFile("a.map", text);
        return level.load("a.map", marble);
    }
};

} // namespace

TEST_F(LevelFile, FillsTheLevelAndColoursTheMarble) {
    ASSERT_TRUE(load("marblecolor= 0x00FF10 holecount= 2 fogcolor= 0xFF8000 texturefile= ground\n"
                     ".data 1.5 -2e1\n+3 .25\n\n10 20 30 -40 .end"));
    EXPECT_EQ(level.getFogColourCode(), 0xFF8000U);
    EXPECT_EQ(std::to_array(level.fogColour), (std::array{1.0F, 128 / 255.0F, 0.0F, 1.0F}));
    EXPECT_EQ(level.marbleColourCode, 0x00FF10U);
    EXPECT_EQ(std::to_array(marble.colour), (std::array{0.0F, 255.0F, 16.0F}));
    ASSERT_EQ(level.holeCount, 2);
    const Hole& hole = level.holes[0];
    EXPECT_TRUE(hole.x == 1.5F && hole.y == -20 && hole.width == 3 && hole.depth == 0.25F);
    EXPECT_EQ(level.holes[1].depth, -40);

    machine.drawn.clear();
    ASSERT_TRUE(load("texturefile= ground")); // the texture takes the place of the one before
    GlCalls expected = {{"glDeleteTextures", 1, 1}, {"glBindTexture", 1}};
    for (int k = 0; k < 8; ++k) {
        const int size = 128 >> k;
        expected.emplace_back("glTexImage2D", k, 3, size, size, 0, GL_RGB, GL_UNSIGNED_BYTE, k + 1);
    }
    EXPECT_EQ(only({"glDeleteTextures", "glBindTexture", "glTexImage2D"}), expected);

    ASSERT_TRUE(load("fogcolor= 010")); // octal; the marble keeps its colour, the holes are gone
    EXPECT_EQ(std::to_array(level.fogColour), (std::array{0.0F, 0.0F, 8 / 255.0F, 1.0F}));
    EXPECT_EQ(marble.colour[1], 255);
    EXPECT_EQ(level.holeCount, 0);
    ASSERT_TRUE(load("marblecolor= 1"));
    EXPECT_EQ(level.getFogColourCode(), 8U);
}

TEST_F(LevelFile, SaysWhyItIsRefused) {
    const std::string unknown = "a.map contains a unknown token";
    const std::string forty = "quarantesignes" + std::string(26, 'n');
    const struct {
        std::string text, message;
    } cases[] = {
        {"holecount=0 .data .end", unknown + "holecount=0"},
        {"FogColor= 1", unknown + "FogColor="},
        {"fogcolor= 1 2", unknown + "2"},
        {"w\xC3\xB6rt\x7F\t1", unknown + "w\xC3\xB6rt?"},
        {"\x1B[31m\xC2\x9B\xFFred", unknown + "?[31m???red"},
        {forty, unknown + forty},
        {forty + "e", unknown + forty + "..."},
        {"texturefile= ground texturefile= no", "no_0.bmp"},
        {"holecount= 1 .data 1 2 3 4", "expected .end"},
        {"holecount= 1 .data 1 2 3 4 5 .end", "expected .end"},
        {"holecount= -1 .data .end", "out of memory"},
        {"holecount= 100001 .data .end", "out of memory"},
    };
    for (const auto& c : cases) {
        machine.lines.clear();
        EXPECT_FALSE(load(c.text)) << c.text;
        EXPECT_EQ(boxes(), Lines{c.message + " | error | nobody"}) << c.text;
    }
    machine.lines.clear();
    // There is none; a folder; there is none, or its first byte cannot be read.
    for (const char* name : {"no.map", ".", "/proc/self/mem"}) {
        EXPECT_FALSE(level.load(name, marble));
        EXPECT_EQ(boxes().back(), std::string(name) + "file not found | error | nobody");
    }
    std::filesystem::remove("ground_7.bmp");
    EXPECT_FALSE(load("texturefile= ground"));
    EXPECT_EQ(boxes().back(), "ground_7.bmp | error | nobody");
}

TEST_F(LevelFile, EndsDirectlyAfterItsLastToken) {
    for (const char* text : {"holecount= 0 .data .end", ".data .end", "fogcolor= 4294967295",
                             "fogcolor= 0XfF", "holecount= 1"}) {
        EXPECT_TRUE(load(text)) << text;
    }
    for (const char* text :
         {"", " \n", "holecount= 0 .data .end\n", "holecount= 0 .data .end ", "fogcolor= 1\n",
          "fogcolor=", "fogcolor= ", "fogcolor= 08", "fogcolor= 0x", "fogcolor= red marblecolor= 1",
          "texturefile=", "holecount= 4294967296", "holecount= 3000000000",
          "holecount= 100000 .data", "marblecolor= 4294967296"}) {
        EXPECT_FALSE(load(text)) << text;
    }
    std::string text = "fogcolor= 1";
    for (int i = 1; i < maxDirectives; ++i) {
        text += " holecount= 1";
    }
    EXPECT_TRUE(load(text));
    EXPECT_FALSE(load(text + " fogcolor= 1"));
    EXPECT_FALSE(load("fogcolor= 1" + std::string(maxTextSize, ' ') + "fogcolor= 1"));
    EXPECT_EQ(boxes(), Lines{});
}

TEST_F(LevelFile, NamesABaseOfAtMost249Bytes) {
    EXPECT_FALSE(load("texturefile= " + std::string(5000, 'b')));
    EXPECT_FALSE(load(std::string(256, 'k') + " 1"));
    const std::string base = "deep/" + std::string(244, 'b');
    writeMipChain(base, 128, 1);
    EXPECT_FALSE(load("texturefile= " + base) || load("texturefile= " + base + 'b'));
    EXPECT_EQ(boxes(), (Lines{base + "_1.bmp | error | nobody", base + "b | error | nobody"}));
}
