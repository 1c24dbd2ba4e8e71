#include "art/pictures/portable_math.h"

#include <cmath>

namespace {

constexpr double naturalLogarithmOf2 = 0.69314718055994530942;

// Horner's rule for the Taylor series of sine, for |x| <= pi / 2.
double sineSeries(double x) {
    const double square = x * x;
    double sum = 1.0;
    for (int n = 21; n >= 3; n -= 2)
        sum = 1.0 - sum * square / (n * (n - 1));
    return x * sum;
}

// For 0 <= x <= 1, by halving the angle until the series is short.
double arcTangent(double x) {
    for (int i = 0; i < 3; ++i)
        x /= 1.0 + std::sqrt(1.0 + x * x);
    const double square = x * x;
    double sum = 0.0;
    for (int n = 9; n >= 1; n -= 2)
        sum = 1.0 / n - sum * square;
    return 8.0 * x * sum;
}

} // namespace

double sine(double angle) {
    angle -= 2.0 * pi * std::floor(angle / (2.0 * pi) + 0.5);
    if (angle > 0.5 * pi) angle = pi - angle;
    if (angle < -0.5 * pi) angle = -pi - angle;
    return sineSeries(angle);
}

double cosine(double angle) {
    return sine(angle + 0.5 * pi);
}

double exponential(double x) {
    if (x < -700.0) return 0.0;
    const double halvings = std::floor(x / naturalLogarithmOf2 + 0.5);
    const double rest = x - halvings * naturalLogarithmOf2;
    double sum = 1.0;
    for (int n = 14; n >= 1; --n)
        sum = 1.0 + sum * rest / n;
    return std::ldexp(sum, static_cast<int>(halvings));
}

double naturalLogarithm(double x) {
    int exponent = 0;
    double fraction = std::frexp(x, &exponent);
    if (fraction < 0.70710678118654752440) {
        fraction *= 2.0;
        exponent -= 1;
    }
    const double s = (fraction - 1.0) / (fraction + 1.0);
    const double square = s * s;
    double sum = 0.0;
    for (int n = 23; n >= 1; n -= 2)
        sum = 1.0 / n + sum * square;
    return 2.0 * s * sum + exponent * naturalLogarithmOf2;
}

double power(double base, double exponent) {
    return base > 0.0 ? exponential(exponent * naturalLogarithm(base)) : 0.0;
}

double angleOf(double x, double y) {
    const double across = std::fabs(x);
    const double up = std::fabs(y);
    if (across == 0.0 && up == 0.0) return 0.0;
    double angle = up <= across ? arcTangent(up / across) : 0.5 * pi - arcTangent(across / up);
    if (x < 0.0) angle = pi - angle;
    return y < 0.0 ? -angle : angle;
}

double smoothStep(double low, double high, double x) {
    const double t = clamp01((x - low) / (high - low));
    return t * t * (3.0 - 2.0 * t);
}

double clamp01(double x) {
    return x < 0.0 ? 0.0 : x > 1.0 ? 1.0 : x;
}
