#include "art/sounds/grid_text.h"

#include <cctype>
#include <sstream>

namespace {

// Splits the text into bars without blanks, each as often as it is to be played.
bool splitBars(const std::string& text, std::vector<std::string>& bars) {
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, '|');) {
        std::string steps;
        std::size_t i = 0;
        for (; i < part.size() && part[i] != '*'; ++i)
            if (!std::isspace(static_cast<unsigned char>(part[i]))) steps += part[i];
        int count = 1;
        if (i < part.size() && !(std::istringstream(part.substr(i + 1)) >> count)) return false;
        if (steps.empty() || count < 1) return false;
        bars.insert(bars.end(), static_cast<std::size_t>(count), steps);
    }
    return !bars.empty();
}

void appendBar(const std::string& steps, int start, int ticksPerBar, std::vector<GridHit>& hits) {
    const int stepLength = ticksPerBar / static_cast<int>(steps.size());
    for (const char sign : steps) {
        if (sign == '-' && !hits.empty() && hits.back().start + hits.back().length == start)
            hits.back().length += stepLength;
        else if (sign != '.' && sign != '-')
            hits.push_back({start, stepLength, sign});
        start += stepLength;
    }
}

} // namespace

bool readGrid(const std::string& text, int barCount, int ticksPerBar, std::vector<GridHit>& hits,
              std::string& error) {
    std::vector<std::string> bars;
    if (!splitBars(text, bars)) {
        error = "not a grid: \"" + text + "\"";
        return false;
    }
    if (barCount % static_cast<int>(bars.size()) != 0) {
        error = std::to_string(bars.size()) + " bars do not fill " + std::to_string(barCount);
        return false;
    }
    for (int i = 0; i < barCount; ++i) {
        const std::string& steps = bars[static_cast<std::size_t>(i) % bars.size()];
        if (ticksPerBar % static_cast<int>(steps.size()) != 0) {
            error = "uneven steps: \"" + steps + "\"";
            return false;
        }
        appendBar(steps, i * ticksPerBar, ticksPerBar, hits);
    }
    return true;
}
