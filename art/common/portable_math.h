// Mathematics that gives the same bits on every machine.
//
// The pictures and sounds are committed and compared byte for byte with what the programs make, and
// the system's sine, exponential and logarithm differ between libraries in the last bit. These
// functions use only sums, products, quotients and square roots, which IEEE 754 defines exactly.
#pragma once

inline constexpr double pi = 3.14159265358979323846;

// Returns the sine of a finite angle in turns (1.0 is the full circle).
double sineOfTurns(double turns);

// The same for angles in radians.
double sine(double angle);
double cosine(double angle);

// Returns the angle of the vector (x, y), -pi..pi, to about 1e-6; 0 for (0, 0).
double angleOf(double x, double y);

// Returns 2 to the power x.
double powerOfTwo(double x);

// Returns e to the power x, and the logarithm of x > 0 to the base e.
double exponential(double x);
double naturalLogarithm(double x);

// Returns base to the power exponent; 0 for a base of 0 or less.
double power(double base, double exponent);

// Returns x, clamped to 0..1.
double clamp01(double x);

// Returns the linear interpolation from a (share 0) to b (share 1).
inline double lerp(double a, double b, double share) {
    return a + (b - a) * share;
}

// Returns 0 below low, 1 above high, and a smooth cubic ramp between them.
double smoothstep(double low, double high, double x);
