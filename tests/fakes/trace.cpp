#include "fakes/trace.h"

#include <algorithm>
#include <cmath>
#include <ostream>

#include "fakes/play.h"

MachineRecord machine;

DEVMODEA modeOf(DWORD bits, DWORD width, DWORD height) {
    DEVMODEA mode = {};
    mode.dmSize = sizeof mode;
    mode.dmFields = 7;
    mode.dmBitsPerPel = bits;
    mode.dmPelsWidth = width;
    mode.dmPelsHeight = height;
    return mode;
}

void passTime(double seconds) {
    machine.counter += std::llround(seconds * static_cast<double>(counterFrequency));
}

void failNext(std::string_view function) {
    machine.failures.emplace(function);
}

bool fails(std::string_view function) {
    return machine.failures.erase(std::string(function)) != 0;
}

Lines linesOf(std::string_view function) {
    const std::string start = std::string(function) + ' ';
    Lines found;
    for (const std::string& line : machine.lines) {
        if (line.starts_with(start)) { found.push_back(line.substr(start.size())); }
    }
    return found;
}

bool operator==(const GlCall& a, const GlCall& b) {
    const auto near = [](double x, double y) {
        return x == y || std::abs(x - y) <= 1e-5 * std::fmin(std::abs(x), std::abs(y)) + 5e-7;
    };
    return a.name == b.name &&
           std::equal(a.numbers.begin(), a.numbers.end(), b.numbers.begin(), near);
}

void PrintTo(const GlCall& call, std::ostream* out) {
    *out << call.name << ' ' << testing::PrintToString(call.numbers);
}

GlCalls only(std::initializer_list<std::string_view> names) {
    GlCalls found;
    std::copy_if(drawn().begin(), drawn().end(), std::back_inserter(found), [&](const GlCall& c) {
        return std::find(names.begin(), names.end(), c.name) != names.end();
    });
    return found;
}

std::ptrdiff_t count(const GlCall& call) {
    return std::count(drawn().begin(), drawn().end(), call);
}

std::ptrdiff_t count(std::string_view name) {
    return std::ssize(only({name}));
}

Lines painted() {
    Lines found;
    for (const GlCall& call : only({"glBegin", "glDrawPixels"})) {
        const std::string& state = machine.glStates[call.state];
        if (found.empty() || found.back() != state) { found.push_back(state); }
    }
    return found;
}

namespace {

bool isAt(double a, double b) {
    return std::abs(a - b) <= 0.01;
}

// The scale and the colour of two texts are the same.
bool lookAlike(const Text& a, const Text& b) {
    return std::abs(a.scale - b.scale) <= 1e-4 &&
           std::equal(a.colour.begin(), a.colour.end(), b.colour.begin(),
                      [](double x, double y) { return std::abs(x - y) <= 1e-4; });
}

} // namespace

bool operator==(const Text& a, const Text& b) {
    return a.text == b.text && isAt(a.x, b.x) && isAt(a.y, b.y) && lookAlike(a, b);
}

void PrintTo(const Text& text, std::ostream* out) {
    *out << '"' << text.text << "\" at " << text.x << ", " << text.y << " scale " << text.scale
         << " colour " << testing::PrintToString(text.colour);
}

// Each glyph is one quad; its character code is the left edge of its texture coordinates.
std::vector<Text> textsDrawn() {
    const GlCalls calls = only({"glBindTexture", "glColor4f", "glTexCoord2f", "glVertex2f"});
    const GlCall fontBound("glBindTexture", 10);
    std::vector<Text> texts;
    double pen = 0;
    for (auto c = calls.begin(); c != calls.end(); ++c) {
        if (!(*c == fontBound) || calls.end() - c < 10) { continue; }
        const auto &colour = c[1].numbers, &topLeft = c[3].numbers, &bottomRight = c[7].numbers;
        const auto character = static_cast<char>(std::lround(c[2].numbers[0] * 255));
        const double scale = (topLeft[1] - bottomRight[1]) * 240 / testGlyph(character).height;
        const Text glyph{std::string(1, character),
                         (topLeft[0] + 1) * 320,
                         (1 - topLeft[1]) * 240,
                         scale,
                         {colour[0], colour[1], colour[2], colour[3]}};
        const bool blank = isAt(glyph.x, pen + 10 * scale);
        if (!texts.empty() && isAt(texts.back().y, glyph.y) && lookAlike(texts.back(), glyph) &&
            (blank || isAt(glyph.x, pen))) {
            texts.back().text += blank ? " " + glyph.text : glyph.text;
        } else {
            texts.push_back(glyph);
        }
        pen = (bottomRight[0] + 1) * 320;
    }
    return texts;
}
