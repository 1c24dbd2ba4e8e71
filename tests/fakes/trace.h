// The machine that the tests simulate.
//
// tests/fakes defines every function of platform/windows_api.h and the OpenGL functions that the
// game calls. Each of them records the call and returns a plausible result, which a test can
// change through `machine`. `machine = MachineRecord{}` resets it.
#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <functional>
#include <initializer_list>
#include <iosfwd>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/windows_api.h"

using Lines = std::vector<std::string>;

// One call of OpenGL: the function and its numbers in order; of pixels the first one, 0xRRGGBB.
struct GlCall {
    std::string_view name;
    std::array<double, 9> numbers = {};
    std::size_t state = 0; // of a drawing: its shape and state, in MachineRecord::glStates

    template <class... Numbers>
    GlCall(std::string_view function, Numbers... values)
        : name(function), numbers{static_cast<double>(values)...} {}
};
using GlCalls = std::vector<GlCall>;

// Same function, same numbers within the accuracy of a float.
bool operator==(const GlCall& a, const GlCall& b);
void PrintTo(const GlCall& call, std::ostream* out);

// A display mode of that many bits a pixel, which sets some fields itself.
DEVMODEA modeOf(DWORD bits, DWORD width, DWORD height);

// What the game sees of the machine, and what it has done to it.
struct MachineRecord {
    std::vector<DEVMODEA> modes = {modeOf(8, 640, 480), modeOf(16, 640, 480)};
    std::deque<LONG> switchResults; // of ChangeDisplaySettingsA, in turn; then success
    bool formatNeedsPalette = false;

    std::set<int> keysHeld;
    LONGLONG counter = 1'000'000; // changed by passTime only

    // Called when the message queue is empty; a test that runs WinMain acts here.
    std::function<void()> whenIdle;
    std::deque<MSG> queue;
    bool quitPosted = false;
    int quitCode = -1;
    UINT translated = 0; // the message that TranslateMessage got last
    WNDCLASSA windowClass = {};
    HGLRC context = nullptr; // of OpenGL

    int openFiles = 0;
    int systemTexts = 0;           // texts of FormatMessageA that LocalFree has not released yet
    std::set<MCIDEVICEID> devices; // open sequencers, numbered 1, 2, 3, ...
    MCIDEVICEID lastDevice = 0;
    MCIDEVICEID playingDevice = 0; // 0: none

    std::set<std::string> failures; // see failNext
    Lines lines;   // the calls, a line each: the function, then the values that matter
    GlCalls drawn; // OpenGL and SwapBuffers, since the last tick began
    std::map<std::string, std::string> glState; // what is set: see fakes/gl.cpp
    Lines glStates;                             // that drawings had, in words
    bool glStateChanged = true;                 // since the last drawing
    std::string glShape;                        // of the last drawing
};
extern MachineRecord machine;

// The handles that the machine returns.
extern const HWND theWindow;
extern const HWND focusWindow; // has the focus before the game has a window
extern const HDC theSurface;

void passTime(double seconds);

// The function's next call fails. MCI commands are named MCI_OPEN, MCI_STATUS, MCI_PLAY.
void failNext(std::string_view function);

// For the fakes: returns whether this call fails.
bool fails(std::string_view function);

// Returns the recorded lines of a function, without its name.
Lines linesOf(std::string_view function);

inline Lines boxes() {
    return linesOf("MessageBoxA");
} // "text | caption | owner, icon"
inline Lines sounds() {
    return linesOf("PlaySoundA");
}
inline Lines music() {
    return linesOf("MCI");
} // "open sounds/midi1.mid", "play 1", "close 1"

// The OpenGL calls of the last frame: all of them, those of some functions, and how many.
inline const GlCalls& drawn() {
    return machine.drawn;
}
GlCalls only(std::initializer_list<std::string_view> names);
std::ptrdiff_t count(const GlCall& call);
std::ptrdiff_t count(std::string_view name);

// The drawings of the last frame, each as its shape and the state that it was drawn in, such as
// "triangles, depth greater, fog linear 0.0025 0.1 1 1 1 1 nicest". Equal ones in a row count once.
Lines painted();

// A line of text on the screen, put together from glyphs of the test font (tests/fakes/play.h).
struct Text {
    std::string text;
    double x; // pixels from the left, of its left edge
    double y; // pixels from the top, of its top edge
    double scale;
    std::array<double, 4> colour;
};
bool operator==(const Text& a, const Text& b);
void PrintTo(const Text& text, std::ostream* out);
std::vector<Text> textsDrawn();
