#include "tools/level/drive_digest.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::uint64_t fnvPrime = 1099511628211U;

// Adds the bytes of a float, the least significant first on every machine.
void addFloat(std::uint64_t& digest, float number) {
    std::uint32_t bits = 0; // not every standard library has std::bit_cast
    std::memcpy(&bits, &number, sizeof bits);
    for (unsigned shift = 0; shift < 32U; shift += 8U) {
        digest = (digest ^ (bits >> shift & 0xFFU)) * fnvPrime;
    }
}

} // namespace

void DriveDigest::add(const RunState& state) {
    const Vector3& p = state.rolling.position;
    const Vector3& v = state.rolling.velocity;
    for (const float number : {p.x, p.y, p.z, v.x, v.y, v.z, state.clock, state.turbo}) {
        addFloat(value, number);
    }
}

int firstDifference(const std::vector<Checkpoint>& recorded,
                    const std::vector<Checkpoint>& driven) {
    const auto [one, other] =
        std::mismatch(recorded.begin(), recorded.end(), driven.begin(), driven.end());
    if (one != recorded.end()) { return one->tick; }
    return other != driven.end() ? other->tick : 0;
}
