// The words and numbers of the game's text files: each is taken whole or refused.
#include "data/tokens.h"

#include "fakes/play.h"

namespace {

struct Tokens : Story {
    TokenReader reader;

    bool open(const std::string& content) {
        writeFile("words.txt", content);
        reader = TokenReader();
        return reader.open("words.txt");
    }

    // Each word is a number of this value. None of `refused` is one, nor is what follows it.
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

} // namespace

TEST_F(Tokens, AreNumbersTakenWhole) {
    expectNumbers<std::int32_t>(&TokenReader::readInteger,
                                {{"+3", 3}, {"-3", -3}, {"0x1F", 31}, {"-0X10", -16}, {"+010", 8}},
                                {"3x", "3.5", "08", "0x", "-", "+", "--1", "2147483648"});
    expectNumbers<std::uint32_t>(&TokenReader::readUnsigned, {{"-0", 0}}, {"-1", "4294967296"});
    expectNumbers<float>(
        &TokenReader::readFloat,
        {{"1.5", 1.5F}, {"+.5", 0.5F}, {"-2.", -2.0F}, {"-1e1", -10.0F}, {"-1e-999", 0.0F}},
        {"1x", "1.2.3", "1e", "-", "+", "-+1", ".", "1,5", "nan", "inf", "1e99", "0x1"});
}

TEST_F(Tokens, HoldNoZeroBytes) {
    char token[tokenCapacity];
    EXPECT_TRUE(open(std::string("br\0ken", 6)));
    EXPECT_FALSE(reader.readToken(token));
}

TEST_F(Tokens, DoNotComeFromADirectory) {
    std::filesystem::create_directory("maps");
    EXPECT_FALSE(reader.open("maps") || level.load("maps", marble));
    EXPECT_EQ(boxes(), Lines{"mapsfile not found | error | nobody"});
}
