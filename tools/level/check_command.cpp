// glorbix-level check: why the game would refuse a level, and what its author did not mean.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>

#include "data/level_list.h"
#include "sim/course.h"
#include "state/game.h"
#include "tools/level/command_line.h"
#include "tools/level/fault_text.h"
#include "tools/level/game_folder.h"
#include "tools/level/guide.h"
#include "tools/level/level_run.h"
#include "tools/level/return_spots.h"

namespace {

constexpr double alikeColours = 90.0; // distance of two colours that are hard to tell apart

struct Findings {
    const std::string& file;
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

void checkHole(int index, Findings& findings) {
    const Hole& hole = level.allHoles()[static_cast<std::size_t>(index)];
    if (!(hole.width > 0.0F)) { findings.add(holeName(index) + " has no width above 0"); }
    if (hole.depth == 0.0F) { findings.add(holeName(index) + " has the depth 0 and does nothing"); }
    if (!(hole.depth > 0.0F)) { return; }
    const bool onCourse = hole.x >= courseLeft && hole.x <= courseRight && hole.y >= courseBack &&
                          hole.y <= -courseBack;
    if (!onCourse) { findings.add(holeName(index) + " is a well beside the course"); }
    if (std::abs(static_cast<double>(hole.y) - goalLine) <= catchRadiusInWidths * hole.width) {
        findings.add(holeName(index) + " catches on the goal line");
    }
}

void checkReturns(Findings& findings) {
    int reported = -1;
    const std::vector<Return> returns = findReturns();
    if (wellsTried() < level.holeCount) {
        std::printf("%s: so many holes that the marble was dropped into the first %d alone\n",
                    findings.file.c_str(), wellsTried());
    }
    for (const Return& back : returns) {
        if (back.found || back.hole == reported) { continue; }
        reported = back.hole;
        findings.add(holeName(back.hole) +
                     " keeps the marble for ever: along x = 0 behind it there is no spot 250 units "
                     "from all wells");
    }
}

// What the game takes, but the author surely did not mean.
void checkCourse(Findings& findings) {
    for (int i = 0; i < level.holeCount; ++i) {
        checkHole(i, findings);
    }
    if (level.holeCount == 0) { findings.add("there is not a single hole: the ground is flat"); }
    if (level.holeAt(0.0F, startLine) > 0.0F) { findings.add("the start lies in a catch circle"); }
    if (colourDistance(level.fogColourCode, level.marbleColourCode) < alikeColours) {
        findings.add("fogcolor= and marblecolor= are so alike that the marble will be lost in fog");
    }
    checkReturns(findings);
    if (!Guide(level).reachesGoal()) {
        findings.add("no way leads from the start to the goal past all wells");
    }
}

int checkLevel(const std::string& file) {
    Findings findings = {file};
    level.fogColourCode = level.marbleColourCode = 0;
    LevelFileReport report;
    if (!startRun(file.c_str(), report)) {
        if (report.fault.cause == LevelFault::Cause::FileUnreadable) {
            return refuseFile(file + ": cannot be read: " + report.fault.token);
        }
        findings.add(explainFault(report.fault));
        return levelHasFaults;
    }
    for (const std::string& odd : findOddDirectives(report)) {
        findings.add(odd);
    }
    checkCourse(findings);
    if (findings.count == 0) { std::printf("%s: good\n", file.c_str()); }
    return findings.count == 0 ? allWell : levelHasFaults;
}

int explainList() {
    std::printf("%s: the game refuses it: it takes a number of levels, then that many file names, "
                "and nothing behind the last name, not even a line break\n",
                levelListFile);
    return levelHasFaults;
}

// The list and all its levels.
int checkList() {
    if (!loadLevelList()) { return explainList(); }
    std::vector<std::string> files;
    const auto count = static_cast<std::size_t>(Game.levelCount);
    files.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        files.emplace_back(Game.levelFiles[i].get());
    }
    std::printf("%s: good, %zu levels\n", levelListFile, files.size());
    int worst = allWell;
    for (const std::string& file : files) {
        worst = std::max(worst, checkLevel(file));
    }
    return worst;
}

} // namespace

int checkLevels(Words words) {
    if (const std::string option = words.unknownOption(); !option.empty()) {
        return refuseWords("check", "unknown option " + option);
    }
    if (words.words.empty()) {
        return refuseWords("check", "takes level files or maps/maplist.dat");
    }
    std::error_code error;
    const std::filesystem::path home = std::filesystem::current_path(error);
    int worst = allWell;
    for (std::string file : words.words) {
        std::filesystem::current_path(home, error);
        enterGameFolder(file);
        worst = std::max(worst, file == levelListFile ? checkList() : checkLevel(file));
    }
    return worst;
}
