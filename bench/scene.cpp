#include "bench/scene.h"

#include "sim/camera.h"
#include "sim/level.h"
#include "sim/marble.h"
#include "sim/simulation.h"
#include "sim/view_frame.h"
#include "state/game.h"

void lookFromMarble() {
    Game.levelDone = 0;
    Game.clock = levelTime / 2;
    Game.frameTime = 0.1F;
    placeMarble(0.0F, 0.0F);
    cameraPosition = marble.getPosition() + Vector3(0.0F, -1.0F, -1.0F);
    for (int i = 0; i < 100; ++i) {
        updateCamera();
    }
    Game.frameTime = 1.0F / 60.0F;
}

void lookOverRows(std::int64_t rows) {
    const auto row = static_cast<int>(groundRows - rows);
    const auto y = static_cast<float>((row - groundCentreRow) * groundSpacing - 400);
    viewFrame.set(Vector3(0.0F, y, -350.0F), -1.2F, 0.0F, 0.0F);
}

void overRows(benchmark::internal::Benchmark* measured) {
    measured->ArgName("rows")->Arg(20)->Arg(60)->Arg(120)->Arg(240)->Arg(390);
}
