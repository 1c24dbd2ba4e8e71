#include "data/tokens.h"

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <system_error>
#include <vector>

#include "platform/regular_file.h"

namespace {

constexpr const char* whiteSpace = " \t\n\v\f\r";

// Skips a sign. Returns whether it was a minus.
bool takeSign(const char*& text) {
    const bool negative = *text == '-';
    if (negative || *text == '+') { ++text; }
    return negative;
}

// Skips the prefix that gives the base of an integer. Returns the base.
int takeBase(const char*& text) {
    if (text[0] != '0' || text[1] == '\0') { return 10; }
    if (text[1] == 'x' || text[1] == 'X') {
        text += 2;
        return 16;
    }
    ++text;
    return 8;
}

bool parseInteger(const char* token, std::int64_t& value) {
    const bool negative = takeSign(token);
    const int base = takeBase(token);
    const char* end = token + std::strlen(token);
    std::int64_t magnitude = 0;
    const auto [stop, error] = std::from_chars(token, end, magnitude, base);
    if (error == std::errc::invalid_argument || stop != end || *token == '-') { return false; }
    if (error == std::errc::result_out_of_range) {
        magnitude = std::numeric_limits<std::int64_t>::max();
    }
    value = negative ? -magnitude : magnitude;
    return true;
}

// Skips digits. Returns how many there were.
std::size_t takeDigits(const char*& text) {
    const std::size_t count = std::strspn(text, "0123456789");
    text += count;
    return count;
}

// Returns whether the text is digits, optional point and fraction, optional exponent, nothing else.
bool isDecimal(const char* text) {
    std::size_t digits = takeDigits(text);
    if (*text == '.') { digits += takeDigits(++text); }
    if (digits == 0) { return false; }
    if (*text == 'e' || *text == 'E') {
        takeSign(++text);
        if (takeDigits(text) == 0) { return false; }
    }
    return *text == '\0';
}

// strtod expects the decimal point of the current locale. std::from_chars does not, but not every
// standard library has it for floating-point numbers.
double convertDecimal(std::string text) {
    const std::size_t point = text.find('.');
    if (point != std::string::npos) { text.replace(point, 1, std::localeconv()->decimal_point); }
    return std::strtod(text.c_str(), nullptr);
}

// Reads a number too close to 0 for a float as 0. Returns false for one too large.
bool parseFloat(const char* token, float& value) {
    const bool negative = takeSign(token);
    if (!isDecimal(token)) { return false; }
    const double magnitude = convertDecimal(token);
    value = static_cast<float>(negative ? -magnitude : magnitude);
    return !std::isinf(value);
}

// Reads one token as an integer of type T.
template <typename T>
bool readIntegerAs(TokenReader& reader, T& value) {
    char token[tokenCapacity];
    std::int64_t wide = 0;
    if (!reader.readToken(token)) { return false; }
    if (!parseInteger(token, wide) || wide < std::numeric_limits<T>::min() ||
        wide > std::numeric_limits<T>::max()) {
        reader.failed = true;
        return false;
    }
    value = static_cast<T>(wide);
    return true;
}

} // namespace

bool TokenReader::open(const char* fileName) {
    *this = {};
    std::vector<std::uint8_t> bytes;
    const bool whole = readRegularFile(fileName, maxTextSize, bytes, why);
    text.assign(bytes.begin(), bytes.end());
    return whole || !text.empty();
}

bool TokenReader::readToken(char (&token)[tokenCapacity]) {
    if (failed) { return false; }
    last = std::min(text.find_first_not_of(whiteSpace, next), text.size());
    next = std::min(text.find_first_of(whiteSpace, last), text.size());
    reachedEnd = next == text.size();
    cutOff = reachedEnd && !why.empty();
    const std::size_t length = next - last;
    const bool holdsZero = std::memchr(text.data() + last, '\0', length) != nullptr;
    failed = length == 0 || length >= tokenCapacity || holdsZero || cutOff;
    if (failed) { return false; }
    std::memcpy(token, text.data() + last, length);
    token[length] = '\0';
    return true;
}

bool TokenReader::readCharacter(char& character) {
    if (failed) { return false; }
    last = std::min(text.find_first_not_of(whiteSpace, next), text.size());
    failed = reachedEnd = last == text.size();
    if (failed) { return false; }
    character = text[last];
    next = last + 1;
    return true;
}

bool TokenReader::readInteger(std::int32_t& value) {
    return readIntegerAs(*this, value);
}

bool TokenReader::readUnsigned(std::uint32_t& value) {
    return readIntegerAs(*this, value);
}

bool TokenReader::readFloat(float& value) {
    char token[tokenCapacity];
    if (!readToken(token)) { return false; }
    if (parseFloat(token, value)) { return true; }
    failed = true;
    return false;
}

TextPlace TokenReader::place() const {
    const std::size_t lineStart = last == 0 ? 0 : text.rfind('\n', last - 1) + 1;
    const auto before = text.begin() + static_cast<std::ptrdiff_t>(last);
    return {.line = 1 + static_cast<int>(std::count(text.begin(), before, '\n')),
            .column = 1 + static_cast<int>(last - lineStart)};
}

std::string TokenReader::lastToken() const {
    return text.substr(last, next - last);
}
