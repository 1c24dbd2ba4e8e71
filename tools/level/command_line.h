// What the commands of glorbix-level share: arguments, error messages, exit codes.
#pragma once

#include <optional>
#include <string>
#include <vector>

inline constexpr int exitOk = 0;
inline constexpr int exitFault = 1; // a level has faults, or a drive did not reach the goal
inline constexpr int exitUsage = 2; // wrong arguments, or a file that cannot be read or written

// The arguments after the command. Each command takes out its options; what is left are files, or
// unknown options.
struct Arguments {
    std::vector<std::string> values;

    // Takes out a flag. Returns whether it was there.
    bool takeFlag(const std::string& flag);

    // Takes out an option and the argument after it. Returns that argument, or nothing when the
    // option is not there. An option at the very end stays, and is reported as unknown.
    std::optional<std::string> takeOption(const std::string& option);

    // Returns the first argument left that looks like an option, or an empty text.
    std::string unknownOption() const;
};

// Returns why a command may not write that file, an empty text when it may. A file that exists is
// replaced only when `force` is set; a folder, a device or a pipe never.
std::string reasonNotToWrite(const std::string& file, bool force);

// Reports wrong arguments in one line that also names the help. Returns exitUsage.
int usageError(const std::string& command, const std::string& why);

// Reports a failure in one line. Returns exitUsage.
int failure(const std::string& why);

// The commands of glorbix-level (tools/level/main.cpp has their help). Each returns an exit code.
int checkLevels(Arguments arguments);
int drawMap(Arguments arguments);
int driveLevel(Arguments arguments);
int newLevel(Arguments arguments);
