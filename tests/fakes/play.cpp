#include "fakes/play.h"

#include <cstring>
#include <new>

#include "app/display.h"
#include "data/best_times.h"
#include "data/font.h"
#include "sim/camera.h"
#include "sim/simulation.h"
#include "sim/view_frame.h"

namespace {

// As at program start: zeroed memory, then the constructor.
template <class Object>
void reconstruct(Object& object) {
    object.~Object();
    std::memset(static_cast<void*>(&object), 0, sizeof object);
    new (&object) Object;
}

} // namespace

void restartAll() {
    machine = MachineRecord{};
    reconstruct(Game);
    displayMode = {};
    reconstruct(viewFrame);
    reconstruct(level);
    reconstruct(marble);
    reconstruct(font);
    bestTimes = {};
    cameraPosition = steeringForce = Vector3(0, 0, 0);
    cameraAngleX = cameraAngleY = cameraAngleZ = 0;
}

Story::~Story() {
    EXPECT_EQ(machine.openFiles, 0);
    EXPECT_EQ(machine.systemTexts, 0);
}

void expectVector(const Vector3& v, double x, double y, double z, double tolerance) {
    EXPECT_NEAR(v.x, x, tolerance);
    EXPECT_NEAR(v.y, y, tolerance);
    EXPECT_NEAR(v.z, z, tolerance);
}

bool startUp() {
    Game.window = theWindow;
    send(WM_CREATE);
    return !machine.quitPosted;
}

int runProgram(const std::function<void()>& whenIdle) {
    int turns = 0;
    machine.whenIdle = [&] {
        whenIdle();
        if (++turns < 5000) { return; }
        ADD_FAILURE() << "the program does not end";
        PostQuitMessage(-1);
    };
    return WinMain(nullptr, nullptr, nullptr, 3);
}

LRESULT send(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = GameWindowProc(theWindow, message, wParam, lParam);
    while (!machine.queue.empty()) {
        MSG posted;
        PeekMessageA(&posted, theWindow, 0, 0, PM_REMOVE);
        TranslateMessage(&posted);
        DispatchMessageA(&posted);
    }
    return result;
}

void tick(double seconds) {
    passTime(seconds);
    machine.drawn.clear();
    send(WM_GAME_TICK);
}

void ticks(int n, double seconds) {
    for (int i = 0; i < n; ++i) {
        tick(seconds);
    }
}

void startGame() {
    if (!Game.menuOpen) { pressKey(VK_ESCAPE); }
    pressKey(VK_RETURN);
}

void playLevel(const std::vector<Hole>& holes) {
    writeGameFiles({levelText(holes)});
    ASSERT_TRUE(startUp());
    startGame();
    Game.clock = levelTime;
}
