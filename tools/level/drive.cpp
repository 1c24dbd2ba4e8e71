#include "tools/level/drive.h"

namespace {

void recordPoint(Drive& drive, Keys held, int catchesBefore) {
    const RunState now = runState();
    const Vector3& p = now.rolling.position;
    if (now.catches > catchesBefore && !drive.line.empty()) { drive.line.back().caught = true; }
    drive.line.push_back({p.x, p.y, (held & turboKey) != 0, false});
}

// Digests the tick just driven.
void recordDigest(Drive& drive, DriveDigest& digest) {
    digest.add(runState());
    const auto tick = static_cast<int>(drive.keys.ticks.size());
    if (tick % ticksPerCheckpoint == 0 || runIsOver()) {
        drive.keys.checkpoints.push_back({tick, digest.value});
    }
}

} // namespace

Drive driveToEnd(int ticksPerSecond, const KeySource& nextKeys) {
    Drive drive;
    DriveDigest digest;
    drive.keys.ticksPerSecond = ticksPerSecond;
    const float dt = 1.0F / static_cast<float>(ticksPerSecond);
    const auto maxTicks = static_cast<std::size_t>(maxDriveSeconds * ticksPerSecond);
    while (!runIsOver() && drive.keys.ticks.size() < maxTicks) {
        const Keys held = nextKeys(dt);
        const int catchesBefore = runState().catches;
        tickRun(held, dt);
        drive.keys.ticks.push_back(held);
        recordPoint(drive, held, catchesBefore);
        recordDigest(drive, digest);
    }
    drive.end = runState();
    drive.keys.time = drive.end.done ? drive.end.result : 0.0F;
    return drive;
}

Drive replay(const KeyFile& keys) {
    std::size_t next = 0;
    return driveToEnd(keys.ticksPerSecond,
                      [&](float) { return next < keys.ticks.size() ? keys.ticks[next++] : noKey; });
}
