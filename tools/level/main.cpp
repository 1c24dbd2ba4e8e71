// glorbix-level: for people who make levels. One program, a verb for each task.
#include <cstdio>
#include <string>

#include "tools/level/command_line.h"

namespace {

struct Verb {
    const char* name;
    int (*run)(Words words);
    const char* help;
};

constexpr Verb verbs[] = {
    {"check", checkLevels,
     "glorbix-level check FILE...\n"
     "  Reads level files, or maps/maplist.dat with all its levels, as the game does. Tells why\n"
     "  the game would refuse one, and what it would take but the author surely did not mean.\n"
     "  Ends with 0 when all is well, 1 when a level has faults, 2 when a file cannot be read.\n"},
    {"map", drawMap,
     "glorbix-level map FILE -o PNG [--keys KEYS]\n"
     "  Draws the course from above: heights with light and contour lines, wells with their catch\n"
     "  circles, the spots to which they put the marble back, start and goal. Play goes from left\n"
     "  to right, first the upper strip, then the lower. With --keys also the line of a drive.\n"},
    {"drive", driveLevel,
     "glorbix-level drive FILE [--tick N] [--keys KEYS] [--hold-up]\n"
     "glorbix-level drive FILE --play KEYS\n"
     "  Plays the level by the game's own rules, through held keys alone, and prints the time, "
     "the\n"
     "  catches and the turbo left. Ends with 0 when the goal was reached, 1 when not.\n"
     "    --tick N     ticks a second, 10 to 10000; 60 unless told\n"
     "    --keys KEYS  writes the keys that were held to this file\n"
     "    --hold-up    holds Up and nothing else, as a beginner does\n"
     "    --play KEYS  plays the keys of such a file again, to the same result\n"},
    {"new", newLevel,
     "glorbix-level new FILE [--force]\n"
     "  Writes a small level to start from. An existing file is replaced only with --force.\n"},
};

void printAllHelp(std::FILE* out) {
    std::fputs("Makes and tests levels of Glorbix. docs/levels.md tells how they are written.\n\n",
               out);
    for (const Verb& verb : verbs) {
        std::fprintf(out, "%s\n", verb.help);
    }
}

int runVerb(const Verb& verb, Words words) {
    if (words.takeFlag("--help")) {
        std::fputs(verb.help, stdout);
        return allWell;
    }
    return verb.run(std::move(words));
}

} // namespace

int main(int count, char** arguments) {
    const std::string name = count > 1 ? arguments[1] : "";
    for (const Verb& verb : verbs) {
        if (name == verb.name) { return runVerb(verb, {{arguments + 2, arguments + count}}); }
    }
    if (name == "--version") {
        std::puts("glorbix-level " GLORBIX_VERSION);
        return allWell;
    }
    const bool asked = name == "--help" || name == "help";
    printAllHelp(asked ? stdout : stderr);
    return asked ? allWell : cannotDo;
}
