#include "app/window.h"

#include "app/audio.h"
#include "app/display.h"
#include "app/frame.h"
#include "app/keyboard.h"
#include "app/level_run.h"
#include "app/simulation_tick.h"
#include "platform/windows_api.h"
#include "sim/camera.h"
#include "sim/level_clock.h"
#include "state/game.h"

namespace {

constexpr UINT_PTR latchTimer = 1;
constexpr UINT latchPeriod = 1000; // milliseconds

void create(HWND window) {
    if (!initGraphicsAndData(window)) {
        MessageBoxA(window, "initialization failed", errorCaption, MB_OK);
        PostQuitMessage(0);
    }
    SetTimer(window, latchTimer, latchPeriod, nullptr);
}

// Releases everything but the window itself, and ends the program.
void shutDown(HWND window) {
    if (Game.glContext != nullptr) { wglDeleteContext(Game.glContext); }
    Game.glContext = nullptr;
    if (Game.deviceContext != nullptr) { ReleaseDC(window, Game.deviceContext); }
    Game.deviceContext = nullptr;
    Game.stopped = 1;
    if (Game.musicPlaying) { stopMusic(); }
    Game.hasFocus = 0;
    PostQuitMessage(0);
}

void gainFocus() {
    if (Game.hasFocus) { return; }
    Game.paused = 0;
    Game.hasFocus = 1;
}

void loseFocus() {
    Game.hasFocus = 0;
    Game.paused = 1;
}

void paint(HWND window) {
    PAINTSTRUCT painting = {};
    BeginPaint(window, &painting);
    drawFrame();
    EndPaint(window, &painting);
}

// Sets, once a second, what the statistics show for the next second.
void latchStatistics() {
    Game.fps = Game.framesThisSecond;
    Game.pps = Game.trianglesThisSecond;
    Game.framesThisSecond = 0;
    Game.trianglesThisSecond = 0;
}

// Called also while paused, so that no long step follows a pause.
void measureFrameTime() {
    LARGE_INTEGER frequency = {};
    LARGE_INTEGER counter = {};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&counter);
    Game.frameTime = static_cast<float>(static_cast<double>(counter.QuadPart - Game.lastCounter) /
                                        static_cast<double>(frequency.QuadPart));
    Game.lastCounter = counter.QuadPart;
}

void tick() {
    measureFrameTime();
    if (Game.paused || Game.stopped) {
        drawFrame();
        return;
    }
    advanceClocks();
    updateSimulation();
    updateCamera();
    drawFrame();
    checkLevelClock();
}

} // namespace

LRESULT CALLBACK GameWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE: create(window); return 0;
    case WM_DESTROY:
    case WM_CLOSE: shutDown(window); return 0;
    case WM_SETFOCUS: gainFocus(); return 0;
    case WM_KILLFOCUS: loseFocus(); return 0;
    case WM_PAINT: paint(window); return 0;
    case WM_KEYDOWN: handleKeyDown(wParam); return 0;
    case WM_TIMER: latchStatistics(); return 0;
    case MM_MCINOTIFY: rotateMusic(); return 0;
    case WM_GAME_TICK: tick(); return 0;
    case WM_GAME_START_LEVEL: startNextLevel(); return 0;
    default: return DefWindowProcA(window, message, wParam, lParam);
    }
}
