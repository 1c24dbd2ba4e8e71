// Digests of a drive, which differ as soon as one bit of its state does: position and velocity of
// the marble, the clock and the turbo after every tick. A compiler that rounds otherwise, for
// example by fusing multiplications and additions, changes them long before it changes the time.
#pragma once

#include <cstdint>
#include <vector>

#include "tools/level/level_run.h"

inline constexpr int ticksPerCheckpoint = 100;

// The digest of the first `tick` ticks of a drive.
struct Checkpoint {
    int tick;
    std::uint64_t digest;

    bool operator==(const Checkpoint&) const = default;
};

// Digests one tick after the other.
struct DriveDigest {
    std::uint64_t value = 14695981039346656037U; // FNV-1a of no bytes

    void add(const RunState& state);
};

// Compares the checkpoints of a drive with recorded ones. Returns the tick of the first that
// differs or is missing in one of them, 0 when there is none.
int firstDifference(const std::vector<Checkpoint>& recorded, const std::vector<Checkpoint>& driven);
