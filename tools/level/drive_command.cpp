// glorbix-level drive: plays a level and reports the result.
#include <algorithm>
#include <charconv>
#include <cstdio>

#include <unistd.h>

#include "sim/course.h"
#include "tools/level/command_line.h"
#include "tools/level/drive.h"
#include "tools/level/driver.h"
#include "tools/level/fault_text.h"
#include "tools/level/game_folder.h"
#include "tools/level/player.h"

namespace {

struct Options {
    std::string level;
    int ticksPerSecond = 60;
    std::string keysOut;                 // empty: do not write them
    bool force = false;                  // replace that file
    std::string keysIn;                  // empty: a player or the automatic driver plays
    const PlayerSkill* player = nullptr; // nullptr: the automatic driver
    int runs = 1;
    int seed = 1; // of the first run; each further one has the next
};

constexpr int maxNumber = 1'000'000; // of runs, and a seed

// Takes out an option whose value is a whole number from 1. Returns false for any other value.
bool takeNumber(Arguments& arguments, const std::string& option, int& number) {
    const auto word = arguments.takeOption(option);
    if (!word) { return true; }
    const char* end = word->data() + word->size();
    const auto [stop, error] = std::from_chars(word->data(), end, number);
    return error == std::errc() && stop == end && number >= 1 && number <= maxNumber;
}

// Takes out the options of model players. Returns what is wrong with them, or an empty text.
std::string takePlayer(Arguments& arguments, Options& options) {
    if (const auto name = arguments.takeOption("--player")) {
        options.player = findSkill(*name);
        if (options.player == nullptr) { return "expected --player up, average or good"; }
    }
    for (const auto& [option, number] :
         {std::pair{"--runs", &options.runs}, std::pair{"--seed", &options.seed}}) {
        if (!takeNumber(arguments, option, *number)) {
            return std::string("expected ") + option + " 1 to " + std::to_string(maxNumber);
        }
    }
    if (options.player == nullptr && (options.runs > 1 || options.seed > 1)) {
        return "expected --player with --runs or --seed: the automatic driver makes no errors";
    }
    return {};
}

// Parses the arguments. Returns what is wrong with them, or an empty text.
std::string parseOptions(Arguments& arguments, Options& options) {
    if (const auto tick = arguments.takeOption("--tick")) {
        if (!readTicksPerSecond(*tick, options.ticksPerSecond)) {
            return "expected --tick " + std::to_string(minTicksPerSecond) + " to " +
                   std::to_string(maxTicksPerSecond) + ", a whole number of ticks a second";
        }
    }
    options.force = arguments.takeFlag("--force");
    if (const auto keys = arguments.takeOption("--keys")) { options.keysOut = absolutePath(*keys); }
    if (const auto play = arguments.takeOption("--play")) { options.keysIn = absolutePath(*play); }
    if (std::string why = takePlayer(arguments, options); !why.empty()) { return why; }
    if (const std::string option = arguments.unknownOption(); !option.empty()) {
        return "unknown option " + option + ", or no value after it";
    }
    if (arguments.values.size() != 1) { return "expected one level file"; }
    if (options.player != nullptr && !options.keysIn.empty()) {
        return "expected --player or --play, not both";
    }
    if (options.runs > 1 && !options.keysOut.empty()) {
        return "expected --runs or --keys, not both";
    }
    if (options.force && options.keysOut.empty()) { return "expected --keys with --force"; }
    options.level = arguments.values[0];
    return {};
}

// Shows, on a terminal, how far along the course the drive is.
void showProgress(float y) {
    static int shown = -1;
    const int percent = static_cast<int>(100.0F * (y - startLine) / (goalLine - startLine));
    if (percent == shown || isatty(STDERR_FILENO) == 0) { return; }
    shown = percent;
    std::fprintf(stderr, "\r%3d %%", percent);
}

Drive runDriver(const Options& options) {
    Driver driver(level);
    Drive drive = driveToEnd(options.ticksPerSecond, [&](float dt) {
        showProgress(marble.position.y);
        return driver.keysFor(dt);
    });
    if (isatty(STDERR_FILENO) != 0) { std::fputs("\r     \r", stderr); }
    return drive;
}

Drive runPlayer(const Options& options, const Guide& guide, int seed) {
    Player player(*options.player, guide, static_cast<unsigned>(seed));
    return driveToEnd(options.ticksPerSecond, [&](float dt) { return player.keysFor(dt); });
}

// Plays all runs of a model player and prints how many reached the goal, and how fast.
int printRuns(const Options& options) {
    const Guide guide(level, safeClearance);
    const RunState start = runState();
    std::vector<float> times;
    int catches = 0;
    for (int i = 0; i < options.runs; ++i) {
        setRunState(start);
        const RunState end = runPlayer(options, guide, options.seed + i).end;
        catches += end.catches;
        if (end.done) { times.push_back(end.result); }
    }
    std::sort(times.begin(), times.end());
    const double catchesARun = static_cast<double>(catches) / options.runs;
    std::printf("%s: %s reached the goal in %zu of %d runs, %.1f catches a run",
                options.level.c_str(), options.player->name, times.size(), options.runs,
                catchesARun);
    if (!times.empty()) {
        std::printf(", best %.2f s, median %.2f s", static_cast<double>(times.front()),
                    static_cast<double>(times[times.size() / 2]));
    }
    std::puts("");
    return times.empty() ? exitFault : exitOk;
}

Drive runOnce(const Options& options, const KeyFile& keys) {
    if (!options.keysIn.empty()) { return replay(keys); }
    if (options.player == nullptr) { return runDriver(options); }
    return runPlayer(options, Guide(level, safeClearance), options.seed);
}

int printResult(const Options& options, const Drive& drive) {
    const char* many = drive.end.catches == 1 ? "catch" : "catches";
    const double turbo = drive.end.turbo > 0.0F ? drive.end.turbo : 0.0;
    if (drive.end.done) {
        std::printf("%s: goal in %.2f s, %d %s, %.1f s of turbo left\n", options.level.c_str(),
                    static_cast<double>(drive.end.result), drive.end.catches, many, turbo);
        return exitOk;
    }
    const char* what = drive.end.clock < 0.0F ? "time is up" : "caught forever";
    std::printf("%s: %s at y = %.0f, %d %s, %.1f s of turbo left\n", options.level.c_str(), what,
                static_cast<double>(drive.end.rolling.position.y), drive.end.catches, many, turbo);
    return exitFault;
}

} // namespace

int driveLevel(Arguments arguments) {
    Options options;
    if (const std::string why = parseOptions(arguments, options); !why.empty()) {
        return usageError("drive", why);
    }
    KeyFile keys;
    std::string error;
    if (!options.keysIn.empty() && !readKeyFile(options.keysIn, keys, error)) {
        return failure(error);
    }
    if (!options.keysOut.empty()) {
        const std::string why = reasonNotToWrite(options.keysOut, options.force);
        if (!why.empty()) { return failure(why); }
    }
    enterGameFolder(options.level);
    LevelFileReport report;
    if (!startRun(options.level.c_str(), report)) {
        return failure(options.level + ":" + faultMessage(report.fault));
    }
    if (options.runs > 1) { return printRuns(options); }
    const Drive drive = runOnce(options, keys);
    if (!options.keysOut.empty() && !writeKeyFile(options.keysOut, drive.keys, error)) {
        return failure(error);
    }
    return printResult(options, drive);
}
