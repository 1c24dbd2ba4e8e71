// glorbix-level, the tool for making levels: one program with a command for each task.
#include <cstdio>
#include <string>

#include "tools/level/command_line.h"

namespace {

struct Command {
    const char* name;
    int (*run)(Arguments arguments);
    const char* help;
};

constexpr Command commands[] = {
    {"check", checkLevels,
     "glorbix-level check FILE...\n"
     "  Reads level files, or maps/maplist.dat with all its levels, as the game does. Reports\n"
     "  why the game would refuse one, and what it accepts but is probably a mistake.\n"
     "  Exits with 0 when all is good, 1 when a level has faults, 2 when a file cannot be read.\n"},
    {"map", drawMap,
     "glorbix-level map FILE -o PNG [--keys KEYS] [--force]\n"
     "  Draws the course from above: heights with light and contour lines, wells with their catch\n"
     "  circles, the spots to which they put the marble back, start and goal. Play goes from left\n"
     "  to right, first the upper strip, then the lower. With --keys also the line of a drive.\n"
     "  An existing picture is replaced only with --force.\n"},
    {"drive", driveLevel,
     "glorbix-level drive FILE [--tick N] [--keys KEYS [--force]] [--player P [--seed N]]\n"
     "glorbix-level drive FILE --player P --runs N [--seed N] [--tick N]\n"
     "glorbix-level drive FILE --play KEYS\n"
     "  Plays the level by the game's own rules, only through held keys, and prints time, catches\n"
     "  and turbo left. Exits with 0 when the goal was reached, 1 when not.\n"
     "    --tick N     ticks a second, 10 to 10000 (default: 60)\n"
     "    --keys KEYS  writes the keys that were held to this file; an existing one is replaced "
     "only\n"
     "                 with --force\n"
     "    --player P   a model of a player instead of the automatic driver: up holds Up and\n"
     "                 nothing else, average is late and not exact, good is quicker\n"
     "    --seed N     the player's errors, 1 to 1000000 (default: 1); the same seed, the same "
     "run\n"
     "    --runs N     plays N runs with the seeds that follow; prints how many reach the goal\n"
     "    --play KEYS  plays the keys of such a file again, to the same result\n"},
    {"new", newLevel,
     "glorbix-level new FILE [--force]\n"
     "  Writes a small level to start from. An existing file is replaced only with --force.\n"},
};

void printAllHelp(std::FILE* out) {
    std::fputs("Makes and tests levels of Glorbix. docs/levels.md describes their format.\n\n",
               out);
    for (const Command& command : commands) {
        std::fprintf(out, "%s\n", command.help);
    }
}

int runCommand(const Command& command, Arguments arguments) {
    if (arguments.takeFlag("--help")) {
        std::fputs(command.help, stdout);
        return exitOk;
    }
    return command.run(std::move(arguments));
}

} // namespace

int main(int count, char** arguments) {
    const std::string name = count > 1 ? arguments[1] : "";
    for (const Command& command : commands) {
        if (name == command.name) {
            return runCommand(command, {{arguments + 2, arguments + count}});
        }
    }
    if (name == "--version") {
        std::puts("glorbix-level " GLORBIX_VERSION);
        return exitOk;
    }
    const bool asked = name == "--help" || name == "help";
    printAllHelp(asked ? stdout : stderr);
    return asked ? exitOk : exitUsage;
}
