#include "art/sounds/exact_math.h"

#include <cmath>
#include <numbers>

// The sine between -1/4 and 1/4 turn by its Taylor series, which ends at the 13th power there.
double sineOfTurns(double turns) {
    double t = turns - std::floor(turns + 0.5);
    if (t > 0.25) t = 0.5 - t;
    if (t < -0.25) t = -0.5 - t;
    const double x = t * 2.0 * std::numbers::pi;
    const double square = x * x;
    double term = x;
    double sum = x;
    for (int power = 3; power <= 13; power += 2) {
        term *= -square / ((power - 1) * power);
        sum += term;
    }
    return sum;
}

double powerOfTwo(double exponent) {
    const double whole = std::floor(exponent);
    const double x = (exponent - whole) * std::numbers::ln2;
    double term = 1.0;
    double sum = 1.0;
    for (int power = 1; power <= 16; ++power) {
        term *= x / power;
        sum += term;
    }
    return std::ldexp(sum, static_cast<int>(whole));
}

double frequencyOf(double midiPitch) {
    constexpr double concertPitch = 69.0;
    return 440.0 * powerOfTwo((midiPitch - concertPitch) / 12.0);
}

double Dice::next() {
    state = state * 1664525u + 1013904223u;
    return (state >> 8) / 8388608.0 - 1.0;
}
