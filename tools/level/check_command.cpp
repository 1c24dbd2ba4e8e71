// glorbix-level check: reports why the game would refuse a level, and probable mistakes.
#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <filesystem>

#include "data/level_list.h"
#include "data/printable.h"
#include "sim/course.h"
#include "state/game.h"
#include "tools/level/colours.h"
#include "tools/level/command_line.h"
#include "tools/level/fault_text.h"
#include "tools/level/game_folder.h"
#include "tools/level/guide.h"
#include "tools/level/level_run.h"
#include "tools/level/return_spots.h"

namespace {

constexpr double minColourDistance = 90.0; // closer colours are hard to tell apart
constexpr double minContrast = 2.0;        // of the marble with its ground
constexpr double minClockDistance = 50.0;  // of the clock from the sky

// The time at the start in which no key is held.
constexpr float idleSeconds = 5.0F;
constexpr float idleTick = 1.0F / 60.0F;

struct Findings {
    std::string file; // its name, printable
    int count = 0;

    void add(const std::string& what) {
        std::printf("%s:%s%s\n", file.c_str(), std::isdigit(what[0]) != 0 ? "" : " ", what.c_str());
        ++count;
    }
};

std::string holeName(int index) {
    const Hole& hole = level.allHoles()[static_cast<std::size_t>(index)];
    char text[120];
    std::snprintf(text, sizeof text, "hole %d (%g %g %g %g)", index + 1,
                  static_cast<double>(hole.x), static_cast<double>(hole.y),
                  static_cast<double>(hole.width), static_cast<double>(hole.depth));
    return text;
}

double colourDistance(std::uint32_t a, std::uint32_t b) {
    const auto part = [](std::uint32_t c, int shift) {
        return static_cast<double>(c >> shift & 255U);
    };
    return std::hypot(part(a, 16) - part(b, 16), part(a, 8) - part(b, 8), part(a, 0) - part(b, 0));
}

void checkFog(Findings& findings) {
    const std::uint32_t exact = nearestInSixteenBits(level.fogColourCode);
    if (exact == level.fogColourCode) { return; }
    char text[120];
    std::snprintf(text, sizeof text,
                  "fogcolor= 0x%06x is not exact in 16 bits: far ground shows behind the fog; take "
                  "0x%06x",
                  level.fogColourCode, exact);
    findings.add(text);
}

void checkMarble(Findings& findings) {
    if (colourDistance(level.fogColourCode, level.marbleColourCode) < minColourDistance) {
        findings.add("fogcolor= and marblecolor= are too similar to see the marble in fog");
    }
    const double contrast = marbleContrast(level);
    if (contrast >= minContrast) { return; }
    char text[120];
    std::snprintf(text, sizeof text,
                  "the marble is hard to see on its ground: contrast %.2f in fog, expected %.1f",
                  contrast, minContrast);
    findings.add(text);
}

void checkSky(Findings& findings) {
    const double apart = clockDistance(level.fogColourCode);
    if (apart >= minClockDistance) { return; }
    char text[120];
    std::snprintf(text, sizeof text,
                  "the clock is hard to read on the sky of fogcolor=: distance %.0f, expected %.0f",
                  apart, minClockDistance);
    findings.add(text);
}

void checkHole(int index, Findings& findings) {
    const Hole& hole = level.allHoles()[static_cast<std::size_t>(index)];
    if (!(hole.width > 0.0F)) { findings.add(holeName(index) + " has no width above 0"); }
    if (hole.depth == 0.0F) { findings.add(holeName(index) + " has the depth 0 and does nothing"); }
    if (!(hole.depth > 0.0F)) { return; }
    const bool onCourse = hole.x >= courseLeft && hole.x <= courseRight && hole.y >= courseBack &&
                          hole.y <= -courseBack;
    if (!onCourse) { findings.add(holeName(index) + " is a well outside the course"); }
    if (std::abs(static_cast<double>(hole.y) - goalLine) <= catchRadiusInWidths * hole.width) {
        findings.add(holeName(index) + " catches on the goal line");
    }
}

void checkReturns(Findings& findings) {
    int reported = -1;
    const std::vector<ReturnSpot> returns = findReturnSpots();
    if (testedHoleCount() < level.holeCount) {
        std::printf("%s: too many holes: the marble was dropped only into the first %d\n",
                    findings.file.c_str(), testedHoleCount());
    }
    for (const ReturnSpot& back : returns) {
        if (back.found || back.hole == reported) { continue; }
        reported = back.hole;
        findings.add(holeName(back.hole) + " keeps the marble forever: between it and the start, " +
                     "no spot at x = 0 is " + std::to_string(static_cast<int>(nearHole)) +
                     " units from all wells");
    }
}

// A player who only looks on after the start must not be punished for it.
void checkIdleStart(Findings& findings) {
    const RunState start = runState();
    while (runState().clock > levelTime - idleSeconds) {
        tickRun(noKey, idleTick);
    }
    if (runState().catches > 0) {
        findings.add("a marble that nobody steers is lost within 5 s: put mounds behind the start");
    }
    setRunState(start);
}

// Reports what the game accepts but is probably a mistake.
void checkCourse(Findings& findings) {
    for (int i = 0; i < level.holeCount; ++i) {
        checkHole(i, findings);
    }
    if (level.holeCount == 0) { findings.add("there are no holes: the ground is flat"); }
    if (level.holeAt(0.0F, startLine) > 0.0F) { findings.add("the start is in a catch circle"); }
    checkFog(findings);
    checkMarble(findings);
    checkSky(findings);
    checkIdleStart(findings);
    checkReturns(findings);
    if (!Guide(level).reachesGoal()) {
        findings.add("no way from the start to the goal avoids all wells");
    }
}

int checkLevel(const std::string& file) {
    Findings findings = {printable(file)};
    level.fogColourCode = level.marbleColourCode = 0;
    LevelFileReport report;
    if (!startRun(file.c_str(), report)) {
        if (report.fault.cause == LevelFault::Cause::FileUnreadable) {
            return failure(file + ": cannot be read: " + report.fault.token);
        }
        findings.add(faultMessage(report.fault));
        return exitFault;
    }
    for (const std::string& warning : directiveWarnings(report)) {
        findings.add(warning);
    }
    checkCourse(findings);
    if (findings.count == 0) { std::printf("%s: good\n", findings.file.c_str()); }
    return findings.count == 0 ? exitOk : exitFault;
}

int reportBadList() {
    std::printf(
        "%s: the game refuses it: expected the number of levels, then that many file names, "
        "and nothing after the last name, not even a line break\n",
        levelListFile);
    return exitFault;
}

// Checks the list and all its levels.
int checkList() {
    if (!loadLevelList()) { return reportBadList(); }
    std::vector<std::string> files;
    const auto count = static_cast<std::size_t>(Game.levelCount);
    files.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        files.emplace_back(Game.levelFiles[i].get());
    }
    std::printf("%s: good, %zu levels\n", levelListFile, files.size());
    int worst = exitOk;
    for (const std::string& file : files) {
        worst = std::max(worst, checkLevel(file));
    }
    return worst;
}

} // namespace

int checkLevels(Arguments arguments) {
    if (const std::string option = arguments.unknownOption(); !option.empty()) {
        return usageError("check", "unknown option " + option);
    }
    if (arguments.values.empty()) {
        return usageError("check", std::string("expected level files or ") + levelListFile);
    }
    std::error_code error;
    const std::filesystem::path home = std::filesystem::current_path(error);
    int worst = exitOk;
    for (std::string file : arguments.values) {
        std::filesystem::current_path(home, error);
        enterGameFolder(file);
        worst = std::max(worst, file == levelListFile ? checkList() : checkLevel(file));
    }
    return worst;
}
