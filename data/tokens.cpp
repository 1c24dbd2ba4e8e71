#include "data/tokens.h"

#include <cctype>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iomanip>
#include <limits>
#include <string>
#include <system_error>

namespace {

// Steps over a sign; whether it was a minus.
bool takeSign(const char*& text) {
    const bool negative = *text == '-';
    if (negative || *text == '+') ++text;
    return negative;
}

// Steps over the prefix that tells the base of an integer.
int takeBase(const char*& text) {
    if (text[0] != '0' || text[1] == '\0') return 10;
    if (text[1] == 'x' || text[1] == 'X') {
        text += 2;
        return 16;
    }
    ++text;
    return 8;
}

} // namespace

bool parseInteger(const char* token, std::int64_t& value) {
    const bool negative = takeSign(token);
    const int base = takeBase(token);
    const char* end = token + std::strlen(token);
    std::int64_t magnitude = 0;
    const auto [stop, error] = std::from_chars(token, end, magnitude, base);
    if (error == std::errc::invalid_argument || stop != end || *token == '-') return false;
    if (error == std::errc::result_out_of_range) {
        magnitude = std::numeric_limits<std::int64_t>::max();
    }
    value = negative ? -magnitude : magnitude;
    return true;
}

namespace {

// Steps over digits; how many there were.
std::size_t takeDigits(const char*& text) {
    const std::size_t count = std::strspn(text, "0123456789");
    text += count;
    return count;
}

// Digits, optional point and fraction, optional exponent, and nothing else.
bool isDecimal(const char* text) {
    std::size_t digits = takeDigits(text);
    if (*text == '.') digits += takeDigits(++text);
    if (digits == 0) return false;
    if (*text == 'e' || *text == 'E') {
        takeSign(++text);
        if (takeDigits(text) == 0) return false;
    }
    return *text == '\0';
}

// The library's parser takes the decimal point of the current locale. Its std::from_chars, which
// takes none, is not everywhere.
double convertDecimal(std::string text) {
    const std::size_t point = text.find('.');
    if (point != std::string::npos) text.replace(point, 1, std::localeconv()->decimal_point);
    return std::strtod(text.c_str(), nullptr);
}

// A number too near to 0 for a float is 0.
bool parseFloat(const char* token, float& value) {
    const bool negative = takeSign(token);
    if (!isDecimal(token)) return false;
    const double magnitude = convertDecimal(token);
    value = static_cast<float>(negative ? -magnitude : magnitude);
    return !std::isinf(value);
}

// Reads one token as an integer of type T.
template <typename T>
bool readIntegerAs(TokenReader& reader, T& value) {
    char token[tokenCapacity];
    std::int64_t wide = 0;
    if (!reader.readToken(token)) return false;
    if (!parseInteger(token, wide) || wide < std::numeric_limits<T>::min() ||
        wide > std::numeric_limits<T>::max()) {
        reader.stream.setstate(std::ios::failbit);
        return false;
    }
    value = static_cast<T>(wide);
    return true;
}

} // namespace

bool TokenReader::open(const char* fileName) {
    std::error_code error; // a pipe would wait for somebody who writes to it
    if (!std::filesystem::is_regular_file(fileName, error)) return false;
    stream.open(fileName, std::ios::in | std::ios::binary);
    return stream.is_open();
}

bool TokenReader::readToken(char (&token)[tokenCapacity]) {
    std::string text;
    stream >> std::setw(tokenCapacity - 1) >> text;
    if (stream.fail()) return false;
    // Looking at what follows also notices the end of the file behind a token of full length.
    const int next = stream.eof() ? EOF : stream.peek();
    const bool whole = next == EOF || std::isspace(static_cast<unsigned char>(next)) != 0;
    if (!whole || text.find('\0') != std::string::npos) {
        stream.setstate(std::ios::failbit);
        return false;
    }
    std::memcpy(token, text.c_str(), text.size() + 1);
    return true;
}

bool TokenReader::readCharacter(char& character) {
    return static_cast<bool>(stream >> character);
}

bool TokenReader::readInteger(std::int32_t& value) {
    return readIntegerAs(*this, value);
}

bool TokenReader::readUnsigned(std::uint32_t& value) {
    return readIntegerAs(*this, value);
}

bool TokenReader::readFloat(float& value) {
    char token[tokenCapacity];
    if (!readToken(token)) return false;
    if (parseFloat(token, value)) return true;
    stream.setstate(std::ios::failbit);
    return false;
}
