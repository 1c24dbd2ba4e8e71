// glorbix-level drive: plays a level and tells how it went.
#include <cstdio>
#include <filesystem>

#include <unistd.h>

#include "sim/course.h"
#include "tools/level/command_line.h"
#include "tools/level/drive.h"
#include "tools/level/driver.h"
#include "tools/level/fault_text.h"
#include "tools/level/game_folder.h"

namespace {

struct Order {
    std::string level;
    int ticksPerSecond = 60;
    std::string keysOut; // empty: not wanted
    std::string keysIn;  // empty: drive by oneself
    bool holdUp = false;
};

std::string wholePath(const std::string& file) {
    std::error_code ignored;
    return std::filesystem::absolute(file, ignored).string();
}

// Understands the words; the reason when they are wrong.
std::string readOrder(Words& words, Order& order) {
    if (const auto tick = words.takeOption("--tick")) {
        if (!readTicksPerSecond(*tick, order.ticksPerSecond)) {
            return "--tick takes " + std::to_string(fewestTicksPerSecond) + " to " +
                   std::to_string(mostTicksPerSecond) + " ticks a second, a whole number";
        }
    }
    if (const auto keys = words.takeOption("--keys")) { order.keysOut = wholePath(*keys); }
    if (const auto play = words.takeOption("--play")) { order.keysIn = wholePath(*play); }
    order.holdUp = words.takeFlag("--hold-up");
    if (const std::string option = words.unknownOption(); !option.empty()) {
        return "unknown option " + option + ", or nothing behind it";
    }
    if (words.words.size() != 1) { return "takes one level file"; }
    if (order.holdUp && !order.keysIn.empty()) { return "either --hold-up or --play"; }
    order.level = words.words[0];
    return {};
}

// On a terminal: how far along the course the drive is.
void showProgress(float y) {
    static int shown = -1;
    const int percent = static_cast<int>(100.0F * (y - startLine) / (goalLine - startLine));
    if (percent == shown || isatty(STDERR_FILENO) == 0) { return; }
    shown = percent;
    std::fprintf(stderr, "\r%3d %%", percent);
}

Drive driveAlone(const Order& order) {
    Driver driver(level);
    Drive drive = driveToEnd(order.ticksPerSecond, [&](float dt) {
        showProgress(marble.position.y);
        return order.holdUp ? upKey : driver.keysFor(dt);
    });
    if (isatty(STDERR_FILENO) != 0) { std::fputs("\r     \r", stderr); }
    return drive;
}

int printResult(const Order& order, const Drive& drive) {
    const char* many = drive.end.catches == 1 ? "catch" : "catches";
    const double turbo = drive.end.turbo > 0.0F ? drive.end.turbo : 0.0;
    if (drive.end.done) {
        std::printf("%s: goal in %.2f s, %d %s, %.1f s of turbo left\n", order.level.c_str(),
                    static_cast<double>(drive.end.result), drive.end.catches, many, turbo);
        return allWell;
    }
    const char* what = drive.end.clock < 0.0F ? "time is up" : "caught for ever";
    std::printf("%s: %s at y = %.0f, %d %s, %.1f s of turbo left\n", order.level.c_str(), what,
                static_cast<double>(drive.end.rolling.position.y), drive.end.catches, many, turbo);
    return levelHasFaults;
}

} // namespace

int driveLevel(Words words) {
    Order order;
    if (const std::string why = readOrder(words, order); !why.empty()) {
        return refuseWords("drive", why);
    }
    KeyFile keys;
    std::string error;
    if (!order.keysIn.empty() && !readKeyFile(order.keysIn, keys, error)) {
        return refuseFile(error);
    }
    enterGameFolder(order.level);
    LevelFileReport report;
    if (!startRun(order.level.c_str(), report)) {
        return refuseFile(order.level + ":" + explainFault(report.fault));
    }
    const Drive drive = order.keysIn.empty() ? driveAlone(order) : replay(keys);
    if (!order.keysOut.empty() && !writeKeyFile(order.keysOut, drive.keys, error)) {
        return refuseFile(error);
    }
    return printResult(order, drive);
}
