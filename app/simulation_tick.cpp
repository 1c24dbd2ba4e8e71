#include "app/simulation_tick.h"

#include "app/effects.h"
#include "data/asset_files.h"
#include "platform/windows_api.h"
#include "sim/simulation.h"
#include "state/game.h"

namespace {

bool isHeld(int key) {
    return (GetAsyncKeyState(key) & 0x8000) != 0;
}

Controls sampleKeys() {
    Controls controls;
    controls.left = isHeld(VK_LEFT);
    controls.right = isHeld(VK_RIGHT);
    controls.up = isHeld(VK_UP);
    controls.down = isHeld(VK_DOWN);
    controls.turbo = isHeld(VK_SHIFT);
    return controls;
}

} // namespace

void updateSimulation() {
    if (Game.levelDone) { return; }
    const StepEvents events = stepWorld(sampleKeys());
    if (events.reachedGoal) { playEffect(goalSound); }
}
