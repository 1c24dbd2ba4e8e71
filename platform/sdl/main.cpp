// The start of the process: answers questions about the program, chooses the working directory,
// runs the game, shuts SDL down.

#include <cstdio>
#include <string>

#include <SDL.h>

#include "platform/common/errors.h"
#include "platform/common/message_queue.h"
#include "platform/sdl/shutdown.h"
#include "platform/sdl/working_directory.h"
#include "platform/windows_api.h"

namespace {

constexpr int exitFailure = 1;
constexpr int exitUsage = 2;

constexpr const char* usage = R"(usage: glorbix [--help | --version]

Roll a marble down a course of soft wells, against the clock. Arrow keys or a
gamepad steer, Shift is turbo, Escape opens the menu. The manual page names all
keys, files and variables: man glorbix
)";

int runGame() {
    std::string text;
    if (!chooseWorkingDirectory(text)) {
        MessageBoxA(nullptr, text.c_str(), nullptr, MB_ICONHAND);
        return exitFailure;
    }
    if (!text.empty()) { MessageBoxA(nullptr, text.c_str(), "Notice", MB_OK); }
    char noArguments[] = "";
    const int code = WinMain(nullptr, nullptr, noArguments, SW_SHOW);
    // The game itself ends with 0 in every case, also when it refuses a level.
    return code == 0 && (hadFatalError() || !wasAskedToEnd()) ? exitFailure : code;
}

int answer(const std::string& argument) {
    if (argument == "--version") {
        std::puts("glorbix " GLORBIX_VERSION);
        return 0;
    }
    const bool asked = argument == "--help" || argument == "-h";
    std::fputs(usage, asked ? stdout : stderr);
    return asked ? 0 : exitUsage;
}

} // namespace

int main(int count, char* arguments[]) {
    if (count > 1) { return answer(arguments[1]); }
    const int code = runGame();
    shutDown();
    return code;
}
