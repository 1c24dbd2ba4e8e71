// The machine as the tests play it.
//
// tests/fakes defines every function of platform/windows_api.h and the OpenGL functions that the
// game calls. Each of them only writes down that it was called and gives a plausible answer. What
// it answers is scripted through `machine`; what it wrote down is asked for with the functions
// below. `machine = MachineRecord{}` is a fresh machine with nothing written down.
#pragma once

#include <array>
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

    template <class... Numbers>
    GlCall(std::string_view function, Numbers... values)
        : name(function), numbers{static_cast<double>(values)...} {}
};
using GlCalls = std::vector<GlCall>;

template <class... Numbers>
GlCall call(std::string_view function, Numbers... values) {
    return GlCall(function, values...);
}
template <class... Calls>
GlCalls calls(const Calls&... one) {
    return {one...};
}
inline GlCall on(unsigned capability) {
    return {"glEnable", capability};
}
inline GlCall off(unsigned capability) {
    return {"glDisable", capability};
}

// Same function, same numbers within the accuracy of a float.
bool operator==(const GlCall& a, const GlCall& b);
void PrintTo(const GlCall& call, std::ostream* out);

GlCalls operator+(GlCalls a, const GlCalls& b);

// Where a long row of calls departs from the expected one, in words; nothing where it does not.
std::string difference(const GlCalls& actual, const GlCalls& expected);

// What the game sees of the machine, and what it did to it.
struct MachineRecord {
    std::vector<DEVMODEA> modes = {{sizeof(DEVMODEA), 7, 8, 640, 480},
                                   {sizeof(DEVMODEA), 7, 16, 640, 480}};
    std::deque<LONG> switchResults; // of ChangeDisplaySettingsA, in turn; then success
    bool formatNeedsPalette = false;
    bool textureIsResident = false; // what glAreTexturesResident says

    std::set<int> keysHeld;
    LONGLONG counter = 1'000'000; // stands still unless passTime moves it

    // Runs when the message queue is found empty: here a test that plays WinMain acts.
    std::function<void()> whenIdle;
    std::deque<MSG> queue;
    bool quitPosted = false;
    int quitCode = -1;
    WNDCLASSA windowClass = {};

    int cursorCount = 0;
    int openFiles = 0;
    int systemTexts = 0;           // texts of FormatMessageA that LocalFree has not had yet
    std::set<MCIDEVICEID> devices; // open sequencers, numbered 1, 2, 3, ...
    MCIDEVICEID lastDevice = 0;

    std::map<std::string, std::deque<int>, std::less<>> failures; // see failNext
    Lines lines;   // what was called, a line each: the function, then what matters of it
    GlCalls drawn; // OpenGL and SwapBuffers
};
extern MachineRecord machine;

// The handles that the machine gives out.
extern const HWND theWindow;
extern const HWND focusWindow; // has the focus before the game has a window
extern const HDC theSurface;
extern const HGLRC theContext;

inline void hold(int key) {
    machine.keysHeld.insert(key);
}
inline void release(int key) {
    machine.keysHeld.erase(key);
}
void passTime(double seconds);

// The function's next call fails, or the one after `skip` more; of MCI the names are MCI_OPEN,
// MCI_STATUS, MCI_PLAY, and `code` is the error that comes back.
void failNext(std::string_view function, int skip = 0, int code = 1);

// For the fakes: the code with which this call fails, or 0.
int failureOf(std::string_view function);

// The nth allocation with new (std::nothrow) of at least so many bytes from now on fails. None of
// more than 1 GiB ever succeeds.
void failAllocation(std::size_t bytes, int nth = 1);

// The lines of these functions, in order; of one function without its name.
Lines said(std::initializer_list<std::string_view> functions);
Lines said(std::string_view function);

inline Lines boxes() {
    return said("MessageBoxA");
} // "text | caption | owner, icon"
inline Lines sounds() {
    return said("PlaySoundA");
}
inline Lines music() {
    return said("MCI");
} // "open sounds/midi1.mid", "play 1", "close 1"

// The OpenGL calls of the frame drawn last, and ways to look at them.
inline const GlCalls& drawn() {
    return machine.drawn;
}
GlCalls only(const GlCalls& calls, std::initializer_list<std::string_view> names);
long count(const GlCalls& calls, const GlCall& call);
long count(const GlCalls& calls, std::string_view name);
GlCalls from(const GlCalls& calls, const GlCall& first); // `first` and all after it; or nothing
GlCalls upTo(const GlCalls& calls, const GlCall& end);   // all before `end`

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
