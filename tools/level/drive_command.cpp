// glorbix-level drive: plays a level and reports the result.
#include <cstdio>

#include <unistd.h>

#include "sim/course.h"
#include "tools/level/command_line.h"
#include "tools/level/drive.h"
#include "tools/level/driver.h"
#include "tools/level/fault_text.h"
#include "tools/level/game_folder.h"

namespace {

struct Options {
    std::string level;
    int ticksPerSecond = 60;
    std::string keysOut; // empty: do not write them
    std::string keysIn;  // empty: the automatic driver plays
    bool holdUp = false;
};

// Parses the arguments. Returns what is wrong with them, or an empty text.
std::string parseOptions(Arguments& arguments, Options& options) {
    if (const auto tick = arguments.takeOption("--tick")) {
        if (!readTicksPerSecond(*tick, options.ticksPerSecond)) {
            return "expected --tick " + std::to_string(minTicksPerSecond) + " to " +
                   std::to_string(maxTicksPerSecond) + ", a whole number of ticks a second";
        }
    }
    if (const auto keys = arguments.takeOption("--keys")) { options.keysOut = absolutePath(*keys); }
    if (const auto play = arguments.takeOption("--play")) { options.keysIn = absolutePath(*play); }
    options.holdUp = arguments.takeFlag("--hold-up");
    if (const std::string option = arguments.unknownOption(); !option.empty()) {
        return "unknown option " + option + ", or no value after it";
    }
    if (arguments.values.size() != 1) { return "expected one level file"; }
    if (options.holdUp && !options.keysIn.empty()) {
        return "expected --hold-up or --play, not both";
    }
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
        return options.holdUp ? upKey : driver.keysFor(dt);
    });
    if (isatty(STDERR_FILENO) != 0) { std::fputs("\r     \r", stderr); }
    return drive;
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
    enterGameFolder(options.level);
    LevelFileReport report;
    if (!startRun(options.level.c_str(), report)) {
        return failure(options.level + ":" + faultMessage(report.fault));
    }
    const Drive drive = options.keysIn.empty() ? runDriver(options) : replay(keys);
    if (!options.keysOut.empty() && !writeKeyFile(options.keysOut, drive.keys, error)) {
        return failure(error);
    }
    return printResult(options, drive);
}
