// Mathematics that gives the same bits on every machine.
//
// The pictures are committed and made again byte for byte, so nothing here leans on the system's
// sine or power, whose last bit differs between libraries. Only sums, products, quotients and
// square roots are used, which IEEE 754 fixes.
#pragma once

inline constexpr double pi = 3.14159265358979323846;

// Angles in radians, of any size that still has a meaningful remainder.
double sine(double angle);
double cosine(double angle);

// e to the power x; 0 below -700.
double exponential(double x);

// The natural logarithm of x, which must be above 0.
double naturalLogarithm(double x);

// base to the power exponent; 0 for a base of 0 or less.
double power(double base, double exponent);

// The angle of the vector (x, y), -pi..pi, good to about 1e-6; 0 for (0, 0).
double angleOf(double x, double y);

// 0 below low, 1 above high, a smooth ramp without a kink between.
double smoothStep(double low, double high, double x);

double clamp01(double x);

// From a (share 0) to b (share 1).
inline double mix(double a, double b, double share) {
    return a + (b - a) * share;
}
