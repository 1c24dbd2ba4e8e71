// Plays a scenario on the desktop's provider, without a display, and writes its pictures:
//   desktop_pictures SCENARIO FOLDER
// Each picture is 640 x 480 pixels of red, green and blue, from the lower left corner. The clock is
// the count of frames, so the page at the same frame shows the same.
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <GL/gl.h>
#include <SDL.h>

#include "platform/common/provider.h"
#include "platform/sdl/frame_pace.h"
#include "platform/sdl/shutdown.h"
#include "platform/sdl/still_picture.h"
#include "platform/windows_api.h"

namespace {

constexpr LONGLONG frameLength = 15'625'000; // nanoseconds, a 64th of a second

const std::map<std::string, SDL_Scancode> keys = {
    {"ArrowUp", SDL_SCANCODE_UP},    {"ArrowLeft", SDL_SCANCODE_LEFT},
    {"Shift", SDL_SCANCODE_LSHIFT},  {"Enter", SDL_SCANCODE_RETURN},
    {"Escape", SDL_SCANCODE_ESCAPE}, {"F1", SDL_SCANCODE_F1},
    {"F3", SDL_SCANCODE_F3},         {"F4", SDL_SCANCODE_F4},
    {"F5", SDL_SCANCODE_F5}};

struct Playing {
    std::ifstream scenario;
    std::string folder;
    int framesLeft = 0; // of the present step
    LONGLONG clock = 0; // nanoseconds
};

Playing playing;

void press(const std::string& key) {
    SDL_Event event = {};
    event.type = SDL_KEYDOWN;
    event.key.keysym = {keys.at(key), SDL_GetKeyFromScancode(keys.at(key)), KMOD_NONE, 0};
    SDL_PushEvent(&event);
}

// SDL's own table: GetAsyncKeyState reads it, and no event has changed it.
void setHeld(const std::string& key, Uint8 held) {
    const_cast<Uint8*>(SDL_GetKeyboardState(nullptr))[keys.at(key)] = held;
    if (held != 0) { press(key); }
}

void writePicture(const std::string& name) {
    std::vector<char> pixels(640 * 480 * 3);
    glReadPixels(0, 0, 640, 480, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
    std::ofstream(playing.folder + "/" + name + ".rgb", std::ios::binary)
        .write(pixels.data(), static_cast<std::streamsize>(pixels.size()));
}

// Does what the scenario says until it lets frames pass. Returns false at its end.
bool doSteps() {
    std::string line, word, value;
    while (playing.framesLeft == 0 && std::getline(playing.scenario, line)) {
        std::istringstream(line) >> word >> value;
        if (word == "frames") { playing.framesLeft = std::stoi(value); }
        if (word == "picture") { writePicture(value); }
        if (word == "press") { press(value); }
        if (word == "hold" || word == "release") { setHeld(value, word == "hold" ? 1 : 0); }
    }
    return playing.framesLeft > 0;
}

void endFrame() {
    playing.framesLeft -= playing.framesLeft > 0 ? 1 : 0;
    if (!doSteps()) { PostQuitMessage(0); }
    playing.clock += frameLength;
}

} // namespace

// The linker takes these instead of the provider's: nothing waits, every frame is seen, and time is
// what the scenario says.
void waitForNextFrame(SDL_Window*) {}
void waitWhileStill() {}
void waitWhileHidden() {}
void watchPictures() {}
void forgetPicture() {}

bool isPictureStill() {
    endFrame();
    return false;
}

BOOL WINAPI QueryPerformanceFrequency(LARGE_INTEGER* frequency) {
    frequency->QuadPart = 1'000'000'000;
    return TRUE;
}

BOOL WINAPI QueryPerformanceCounter(LARGE_INTEGER* counter) {
    counter->QuadPart = ++playing.clock;
    return TRUE;
}

int main(int count, char* arguments[]) {
    if (count != 3) { return 2; }
    setenv("SDL_VIDEODRIVER", "offscreen", 1);
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    playing.scenario.open(arguments[1]);
    playing.folder = arguments[2];
    char noArguments[] = "";
    WinMain(nullptr, nullptr, noArguments, SW_SHOW);
    shutDown();
    return 0;
}
