#include "tools/level/key_file.h"

#include <fstream>
#include <iomanip>
#include <limits>
#include <sstream>

namespace {

constexpr int mostTicks = 1'000'000; // more is no drive of this game

bool readKeys(std::istringstream& line, Keys& keys) {
    std::string name;
    bool any = false;
    while (line >> name) {
        if (!addKey(name, keys)) return false;
        any = true;
    }
    return any;
}

bool readLine(const std::string& text, KeyFile& into) {
    std::istringstream line(text);
    std::string word;
    if (!(line >> word)) return true;
    if (word == "ticks") return line >> into.ticksPerSecond && into.ticksPerSecond > 0;
    if (word == "time") return static_cast<bool>(line >> into.time);
    int count = 0;
    Keys keys = noKey;
    if (!(std::istringstream(word) >> count) || count < 1 || !readKeys(line, keys)) return false;
    if (count > mostTicks - static_cast<int>(into.ticks.size())) return false;
    into.ticks.insert(into.ticks.end(), static_cast<std::size_t>(count), keys);
    return true;
}

} // namespace

bool readKeyFile(const std::string& fileName, KeyFile& into, std::string& error) {
    std::ifstream file(fileName);
    if (!file) {
        error = fileName + ": cannot be read";
        return false;
    }
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        if (readLine(line, into)) continue;
        error = fileName + ":" + std::to_string(number) +
                ": expected \"ticks N\", \"time T\", or a number of ticks and the keys held";
        return false;
    }
    return true;
}

bool writeKeyFile(const std::string& fileName, const KeyFile& drive, std::string& error) {
    std::ofstream file(fileName);
    file << "ticks " << drive.ticksPerSecond << "\ntime "
         << std::setprecision(std::numeric_limits<float>::max_digits10) << drive.time << '\n';
    for (std::size_t i = 0, next = 0; i < drive.ticks.size(); i = next) {
        while (next < drive.ticks.size() && drive.ticks[next] == drive.ticks[i])
            ++next;
        file << next - i << ' ' << keysText(drive.ticks[i]) << '\n';
    }
    file.close();
    if (file) return true;
    error = fileName + ": cannot be written";
    return false;
}
