// Where the process starts: finds the game's data, runs the game, gives the machine back.

#include <string>

#include <SDL.h>

#include "platform/sdl/errors.h"
#include "platform/sdl/shutdown.h"
#include "platform/sdl/working_directory.h"
#include "platform/windows_api.h"

namespace {

constexpr int failedStart = 1;

int runGame() {
    std::string why;
    if (!chooseWorkingDirectory(why)) {
        MessageBoxA(nullptr, why.c_str(), "Error", MB_ICONHAND);
        return failedStart;
    }
    char noArguments[] = "";
    const int code = WinMain(nullptr, nullptr, noArguments, SW_SHOW);
    return code == 0 && hadFatalError() ? failedStart : code;
}

} // namespace

int main(int, char*[]) {
    const int code = runGame();
    shutDown();
    return code;
}
