#include "art/common/portable_math.h"

#include <cmath>

namespace {

constexpr double ln2 = 0.69314718055994530942;

// Returns the arc tangent of 0 <= x <= 1: the angle is halved until the series is short.
double arcTangent(double x) {
    for (int i = 0; i < 3; ++i) {
        x /= 1.0 + std::sqrt(1.0 + x * x);
    }
    const double square = x * x;
    double sum = 0.0;
    for (int n = 9; n >= 1; n -= 2) {
        sum = 1.0 / n - sum * square;
    }
    return 8.0 * x * sum;
}

} // namespace

double sineOfTurns(double turns) {
    double t = turns - std::floor(turns + 0.5);
    if (std::fabs(t) > 0.25) { t = std::copysign(0.5, t) - t; }
    const double x = t * 2.0 * pi;
    const double square = x * x;
    double term = x;
    double sum = x;
    for (int n = 3; n <= 21; n += 2) {
        term *= -square / ((n - 1) * n);
        sum += term;
    }
    return sum;
}

double sine(double angle) {
    return sineOfTurns(angle / (2.0 * pi));
}

double cosine(double angle) {
    return sineOfTurns(angle / (2.0 * pi) + 0.25);
}

double angleOf(double x, double y) {
    const double across = std::fabs(x);
    const double up = std::fabs(y);
    if (across == 0.0 && up == 0.0) { return 0.0; }
    double angle = up <= across ? arcTangent(up / across) : 0.5 * pi - arcTangent(across / up);
    if (x < 0.0) { angle = pi - angle; }
    return y < 0.0 ? -angle : angle;
}

double powerOfTwo(double x) {
    const double whole = std::floor(x);
    const double rest = (x - whole) * ln2;
    double term = 1.0;
    double sum = 1.0;
    for (int n = 1; n <= 16; ++n) {
        term *= rest / n;
        sum += term;
    }
    return std::ldexp(sum, static_cast<int>(whole));
}

double exponential(double x) {
    return x < -700.0 ? 0.0 : powerOfTwo(x / ln2);
}

double naturalLogarithm(double x) {
    int exponent = 0;
    const double fraction = std::frexp(x, &exponent);
    const double s = (fraction - 1.0) / (fraction + 1.0);
    const double square = s * s;
    double sum = 0.0;
    for (int n = 31; n >= 1; n -= 2) {
        sum = 1.0 / n + sum * square;
    }
    return 2.0 * s * sum + exponent * ln2;
}

double power(double base, double exponent) {
    return base > 0.0 ? exponential(exponent * naturalLogarithm(base)) : 0.0;
}

double clamp01(double x) {
    return x < 0.0 ? 0.0 : x > 1.0 ? 1.0 : x;
}

double smoothstep(double low, double high, double x) {
    const double t = clamp01((x - low) / (high - low));
    return t * t * (3.0 - 2.0 * t);
}
