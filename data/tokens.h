// The one way to read the game's text files: tokens parted by white space.
//
// Every read but readCharacter takes one whole token. A read that fails (nothing left, a token longer than fits, a
// malformed number) leaves the reader failed, and all later reads fail too.
#pragma once

#include <cstdint>
#include <fstream>

inline constexpr int tokenCapacity = 256; // bytes: 255 characters and the closing zero

// All of the token as an integer: an optional sign, then "0x" or "0X" and hexadecimal digits, "0"
// and octal digits, or decimal digits. False for anything else. One that is too large for 64 bits
// becomes the nearest that is not.
bool parseInteger(const char* token, std::int64_t& value);

struct TokenReader {
    std::ifstream stream;

    // Opens an existing file; it is never created. A folder, a pipe or a device is not a file.
    bool open(const char* fileName);

    // One token, zero-terminated. A token of more than 255 characters is refused.
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
    bool atEnd() const { return stream.eof(); }
};
