#include "art/sounds/envelope.h"

#include "art/sounds/exact_math.h"

#include <algorithm>

namespace {

// From 0 to 1 along half a cosine while x goes from 0 to 1.
double smoothStep(double x) {
    return 0.5 - 0.5 * sineOfTurns(0.25 + 0.5 * std::clamp(x, 0.0, 1.0));
}

} // namespace

double Decay::at(double time) const {
    if (time < 0.0) return 0.0;
    return smoothStep(time / attack) * powerOfTwo(-time / halfLife);
}

double Swell::at(double time) const {
    if (time < 0.0 || time > length) return 0.0;
    return smoothStep(time / rise) * smoothStep((length - time) / fall);
}
