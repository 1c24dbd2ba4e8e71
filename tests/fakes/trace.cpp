#include "fakes/trace.h"

#include <GL/gl.h>
#include <algorithm>
#include <cmath>
#include <ostream>

#include "fakes/play.h"

MachineRecord machine;

void passTime(double seconds) {
    machine.counter += std::llround(seconds * static_cast<double>(counterFrequency));
}

void failNext(std::string_view function, int skip, int code) {
    auto& failures = machine.failures[std::string(function)];
    failures.insert(failures.end(), static_cast<std::size_t>(skip), 0);
    failures.push_back(code);
}

int failureOf(std::string_view function) {
    const auto found = machine.failures.find(function);
    if (found == machine.failures.end() || found->second.empty()) { return 0; }
    const int code = found->second.front();
    found->second.pop_front();
    return code;
}

namespace {

std::string_view functionOf(std::string_view line) {
    return line.substr(0, line.find(' '));
}

bool isOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool near(double a, double b, double relative, double absolute) {
    return a == b || std::abs(a - b) <= relative * std::fmin(std::abs(a), std::abs(b)) + absolute;
}

} // namespace

Lines said(std::initializer_list<std::string_view> functions) {
    Lines found;
    for (const std::string& line : machine.lines) {
        if (isOneOf(functionOf(line), functions)) { found.push_back(line); }
    }
    return found;
}

Lines said(std::string_view function) {
    Lines found = said({function});
    for (std::string& line : found) {
        line.erase(0, function.size() + 1);
    }
    return found;
}

bool operator==(const GlCall& a, const GlCall& b) {
    return a.name == b.name &&
           std::equal(a.numbers.begin(), a.numbers.end(), b.numbers.begin(),
                      [](double x, double y) { return near(x, y, 1e-5, 5e-7); });
}

void PrintTo(const GlCall& call, std::ostream* out) {
    *out << call.name;
    for (const double number : call.numbers) {
        *out << ' ' << number;
    }
}

GlCalls operator+(GlCalls a, const GlCalls& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

std::string difference(const GlCalls& actual, const GlCalls& expected) {
    const auto [a, e] =
        std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
    if (a == actual.end() && e == expected.end()) { return ""; }
    return "call " + std::to_string(a - actual.begin()) + " is " +
           (a == actual.end() ? "missing" : testing::PrintToString(*a)) + " but expected " +
           (e == expected.end() ? "nothing" : testing::PrintToString(*e));
}

GlCalls only(const GlCalls& calls, std::initializer_list<std::string_view> names) {
    GlCalls found;
    std::copy_if(calls.begin(), calls.end(), std::back_inserter(found),
                 [&](const GlCall& call) { return isOneOf(call.name, names); });
    return found;
}

long count(const GlCalls& calls, const GlCall& call) {
    return std::count(calls.begin(), calls.end(), call);
}

long count(const GlCalls& calls, std::string_view name) {
    return std::count_if(calls.begin(), calls.end(),
                         [&](const GlCall& call) { return call.name == name; });
}

GlCalls from(const GlCalls& calls, const GlCall& first) {
    return {std::find(calls.begin(), calls.end(), first), calls.end()};
}

GlCalls upTo(const GlCalls& calls, const GlCall& end) {
    return {calls.begin(), std::find(calls.begin(), calls.end(), end)};
}

bool operator==(const Text& a, const Text& b) {
    return a.text == b.text && near(a.x, b.x, 0, 0.01) && near(a.y, b.y, 0, 0.01) &&
           near(a.scale, b.scale, 0, 1e-4) &&
           std::equal(a.colour.begin(), a.colour.end(), b.colour.begin(),
                      [](double x, double y) { return near(x, y, 0, 1e-4); });
}

void PrintTo(const Text& text, std::ostream* out) {
    *out << '"' << text.text << "\" at " << text.x << ", " << text.y << " scale " << text.scale
         << " colour";
    for (const double part : text.colour) {
        *out << ' ' << part;
    }
}

namespace {

// One character's quad; its code stands in its texture coordinates.
struct Glyph {
    char code;
    double left, top, right, bottom;
    std::array<double, 4> colour;
};

std::vector<Glyph> glyphsDrawn() {
    std::vector<Glyph> glyphs;
    const GlCalls calls =
        only(drawn(), {"glBindTexture", "glColor4f", "glTexCoord2f", "glVertex2f"});
    for (std::size_t i = 0; i + 9 < calls.size(); ++i) {
        if (!(calls[i] == GlCall("glBindTexture", GL_TEXTURE_2D, 10))) { continue; }
        if (calls[i + 1].name != "glColor4f") { continue; }
        const auto& colour = calls[i + 1].numbers;
        const auto& topLeft = calls[i + 3].numbers;
        const auto& bottomRight = calls[i + 7].numbers;
        glyphs.push_back({static_cast<char>(std::lround(calls[i + 2].numbers[0] * 255)),
                          (topLeft[0] + 1) * 320,
                          (1 - topLeft[1]) * 240,
                          (bottomRight[0] + 1) * 320,
                          (1 - bottomRight[1]) * 240,
                          {colour[0], colour[1], colour[2], colour[3]}});
    }
    return glyphs;
}

} // namespace

std::vector<Text> textsDrawn() {
    std::vector<Text> texts;
    double pen = 0;
    for (const Glyph& glyph : glyphsDrawn()) {
        const Text alone{std::string(1, glyph.code), glyph.left, glyph.top,
                         (glyph.bottom - glyph.top) / testGlyphHeight, glyph.colour};
        Text* line = texts.empty() ? nullptr : &texts.back();
        const bool blank = line != nullptr && near(glyph.left, pen + 10 * line->scale, 0, 0.01);
        if (line != nullptr && near(line->y, alone.y, 0, 0.01) && line->colour == alone.colour &&
            near(line->scale, alone.scale, 0, 1e-4) && (blank || near(glyph.left, pen, 0, 0.01))) {
            line->text += blank ? " " + alone.text : alone.text;
        } else {
            texts.push_back(alone);
        }
        pen = glyph.right;
    }
    return texts;
}
