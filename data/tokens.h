// Reads the game's text files: tokens separated by white space.
//
// Every read but readCharacter takes one whole token. A read that fails (nothing left, a token that
// is too long, a malformed number) leaves the reader failed, and all later reads fail too.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

inline constexpr int tokenCapacity = 256; // bytes: 255 characters and the final zero

inline constexpr std::size_t maxTextSize = 4U << 20U; // bytes; of a longer file no more is read

// A position in a file; both count from 1.
struct TextPlace {
    int line = 1;
    int column = 1;
};

struct TokenReader {
    std::string text;     // the file, or what could be read of it
    std::size_t next = 0; // index of the next character to read
    std::size_t last = 0; // index at which the token read last begins
    bool failed = false;
    bool reachedEnd = false;
    bool cutOff = false; // the last read failed because the rest of the file was not read
    std::string why;     // the reason for that, or of a failed open (platform/regular_file.h)

    // Reads a file. Returns false when it cannot be read; a missing file is not created. A file
    // that is longer than maxTextSize, or that the disk gives only in part, is read up to there.
    bool open(const char* fileName);

    // Reads one token, zero-terminated. A token of more than 255 characters, or with a zero byte in
    // it, is refused.
    bool readToken(char (&token)[tokenCapacity]);

    // Reads the next character that is not white space; the next read starts right after it.
    bool readCharacter(char& character);

    // Read an integer with an optional sign: decimal, hexadecimal (0x) or octal (a leading 0). One
    // that does not fit the type is malformed.
    bool readInteger(std::int32_t& value);
    bool readUnsigned(std::uint32_t& value);

    // Reads a decimal number: an optional sign, digits, optional point and fraction, optional
    // exponent. One too large for a float is malformed.
    bool readFloat(float& value);

    // Returns whether the last read reached the end of the file: the file ends directly after the
    // last token, without even a line break.
    bool atEnd() const { return reachedEnd; }

    // Returns where the token read last begins, even if it was refused; when nothing is left, the
    // end of the file.
    TextPlace place() const;

    // Returns the token read last, even if it was refused; empty when nothing is left.
    std::string lastToken() const;
};
