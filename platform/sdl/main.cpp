// The start of the process: chooses the working directory, runs the game, shuts SDL down.

#include <string>

#include <SDL.h>

#include "platform/sdl/errors.h"
#include "platform/sdl/shutdown.h"
#include "platform/sdl/working_directory.h"
#include "platform/windows_api.h"

namespace {

constexpr int exitFailure = 1;

int runGame() {
    std::string why;
    if (!chooseWorkingDirectory(why)) {
        MessageBoxA(nullptr, why.c_str(), nullptr, MB_ICONHAND);
        return exitFailure;
    }
    char noArguments[] = "";
    const int code = WinMain(nullptr, nullptr, noArguments, SW_SHOW);
    return code == 0 && hadFatalError() ? exitFailure : code;
}

} // namespace

int main(int, char*[]) {
    const int code = runGame();
    shutDown();
    return code;
}
