#include "data/printable.h"

#include <algorithm>

namespace {

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// Returns how many bytes the first byte of a character promises; 0 when none begins with it.
std::size_t promisedLength(unsigned char first) {
    if (first < 0x80) { return first >= ' ' && first != 0x7F ? 1 : 0; }
    if (first < 0xC2 || first > 0xF4) { return 0; }
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

// Returns the bytes of the printable character at the beginning of the text; 0 when there is none.
std::size_t printableLength(std::string_view text) {
    const std::size_t length = promisedLength(static_cast<unsigned char>(text[0]));
    if (length == 0 || length > text.size()) { return 0; }
    const std::string_view rest = text.substr(1, length - 1);
    if (!std::all_of(rest.begin(), rest.end(), continuesCharacter)) { return 0; }
    const bool isControl = text[0] == '\xC2' && static_cast<unsigned char>(text[1]) < 0xA0;
    return isControl ? 0 : length;
}

// Returns at most so many characters of the text and removes them from it.
std::string takePrintable(std::string_view& text, std::size_t most) {
    std::string taken;
    for (std::size_t count = 0; count < most && !text.empty(); ++count) {
        const std::size_t length = printableLength(text);
        taken += length > 0 ? text.substr(0, length) : "?";
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return taken;
}

} // namespace

std::string printable(std::string_view text) {
    return takePrintable(text, text.size());
}

std::string printableToken(std::string_view token) {
    const std::string shown = takePrintable(token, shownTokenLength);
    return token.empty() ? shown : shown + "...";
}
