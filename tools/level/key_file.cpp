#include "tools/level/key_file.h"

#include <charconv>
#include <cmath>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <limits>
#include <sstream>
#include <system_error>

#include "data/printable.h"
#include "platform/regular_file.h"

namespace {

constexpr int maxTicks = maxDriveSeconds * maxTicksPerSecond;

// Reads the whole word as a number. Returns false when it is anything else or does not fit.
template <class Number>
bool readNumber(const std::string& word, Number& value, int base = 10) {
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, value, base);
    return error == std::errc() && stop == end;
}

bool readTime(const std::string& word, float& time) {
    std::istringstream text(word);
    return text >> time && text.eof() && std::isfinite(time);
}

std::vector<std::string> splitWords(const std::string& line) {
    std::istringstream text(line);
    return {std::istream_iterator<std::string>(text), {}};
}

// Each reads one kind of line. Returns what is wrong with it, or an empty text.
std::string takeTicks(const std::vector<std::string>& words, KeyFile& into) {
    if (words.size() == 2 && readTicksPerSecond(words[1], into.ticksPerSecond)) { return {}; }
    return "\"ticks\" takes one whole number, " + std::to_string(minTicksPerSecond) + " to " +
           std::to_string(maxTicksPerSecond);
}

std::string takeTime(const std::vector<std::string>& words, KeyFile& into) {
    const bool taken = words.size() == 2 && readTime(words[1], into.time);
    return taken ? "" : "\"time\" takes one number of seconds";
}

std::string takeDigest(const std::vector<std::string>& words, KeyFile& into) {
    Checkpoint read = {};
    const bool taken = words.size() == 3 && readNumber(words[1], read.tick) &&
                       readNumber(words[2], read.digest, 16);
    if (!taken) { return "\"digest\" takes a number of ticks and a hexadecimal number"; }
    into.checkpoints.push_back(read);
    return {};
}

std::string takeKeys(const std::vector<std::string>& words, KeyFile& into) {
    int count = 0;
    if (!readNumber(words[0], count) || count < 1 || words.size() < 2) {
        return "expected \"ticks N\", \"time T\", \"digest N D\", or a number of ticks and the "
               "keys "
               "held";
    }
    if (count > maxTicks - static_cast<int>(into.ticks.size())) {
        return "more than " + std::to_string(maxTicks) + " ticks in all";
    }
    Keys keys = noKey;
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (!addKey(words[i], keys)) {
            return "unknown key \"" + printableToken(words[i]) +
                   "\", expected up, down, left, right, shift or -";
        }
    }
    into.ticks.insert(into.ticks.end(), static_cast<std::size_t>(count), keys);
    return {};
}

std::string takeLine(const std::string& line, KeyFile& into) {
    const std::vector<std::string> words = splitWords(line);
    if (words.empty()) { return {}; }
    if (words[0] == "ticks") { return takeTicks(words, into); }
    if (words[0] == "digest") { return takeDigest(words, into); }
    return words[0] == "time" ? takeTime(words, into) : takeKeys(words, into);
}

} // namespace

bool readTicksPerSecond(const std::string& word, int& ticksPerSecond) {
    int number = 0;
    if (!readNumber(word, number) || number < minTicksPerSecond || number > maxTicksPerSecond) {
        return false;
    }
    ticksPerSecond = number;
    return true;
}

bool readKeyFile(const std::string& fileName, KeyFile& into, std::string& error) {
    std::vector<std::uint8_t> bytes;
    std::string why;
    if (!readRegularFile(fileName, maxKeyFileSize, bytes, why)) {
        error = fileName + ": cannot be read: " + why;
        return false;
    }
    std::istringstream lines(std::string(bytes.begin(), bytes.end()));
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        const std::string wrong = takeLine(line, into);
        if (!wrong.empty()) {
            error = fileName + ":" + std::to_string(number) + ": ";
            error += wrong;
            return false;
        }
    }
    return true;
}

bool writeKeyFile(const std::string& fileName, const KeyFile& drive, std::string& error) {
    std::ofstream file(fileName, std::ios::binary); // lines end alike on every system
    file << "ticks " << drive.ticksPerSecond << "\ntime "
         << std::setprecision(std::numeric_limits<float>::max_digits10) << drive.time << '\n';
    for (std::size_t i = 0, next = 0; i < drive.ticks.size(); i = next) {
        while (next < drive.ticks.size() && drive.ticks[next] == drive.ticks[i]) {
            ++next;
        }
        file << next - i << ' ' << keysText(drive.ticks[i]) << '\n';
    }
    for (const Checkpoint& checkpoint : drive.checkpoints) {
        file << "digest " << std::dec << checkpoint.tick << ' ' << std::hex << checkpoint.digest
             << '\n';
    }
    file.close();
    if (file) { return true; }
    error = fileName + ": cannot be written";
    return false;
}
