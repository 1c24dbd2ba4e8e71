// The one way to read the game's text files: tokens separated by white space.
//
// Every read but readCharacter takes one whole token. A read that fails (nothing left, a token that
// is too long, a malformed number) leaves the reader failed, and all later reads fail too.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

inline constexpr int tokenCapacity = 256; // bytes: 255 characters and the closing zero

// Where in a file something stands; both count from 1.
struct TextPlace {
    int line = 1;
    int column = 1;
};

struct TokenReader {
    std::string text;     // the whole file
    std::size_t next = 0; // index of the next character to take
    std::size_t last = 0; // index at which the token read last begins
    bool failed = false;
    bool reachedEnd = false;
    std::string why; // of an open that failed, see data/file_text.h

    // Reads an existing file, which is never created. Returns false when it cannot be read.
    bool open(const char* fileName);

    // One token, zero-terminated. A token of more than 255 characters, or with a zero byte in it,
    // is refused.
    bool readToken(char (&token)[tokenCapacity]);

    // The next character that is not white space, whatever follows it.
    bool readCharacter(char& character);

    // An integer, see parseInteger. One that does not fit the type is malformed.
    bool readInteger(std::int32_t& value);
    bool readUnsigned(std::uint32_t& value);

    // A decimal number: an optional sign, digits, optional point and fraction, optional exponent.
    // One too large for a float is malformed.
    bool readFloat(float& value);

    // Whether the last read reached the end of the file: the file ends directly after the last
    // token, without so much as a line break.
    bool atEnd() const { return reachedEnd; }

    // Where the token read last begins, also one that was refused; where nothing is left, the end.
    TextPlace place() const;

    // The token read last, also one that was refused; empty where nothing is left.
    std::string lastToken() const;
};
