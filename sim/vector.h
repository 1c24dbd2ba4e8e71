// Vectors and matrices of the game: plain values of 32-bit floats, copied freely.
//
// World coordinates: x runs across the course, y along it (play goes towards +y) and z points DOWN,
// so a ground height is a depth and "up" is -z. Nothing here checks a range or allocates.
#pragma once

#include <cfloat>
#include <cmath>

// With x87 arithmetic, for example, a recorded drive ends at another time.
static_assert(
    FLT_EVAL_METHOD == 0,
    "float and double expressions must be evaluated in their own precision, or the marble "
    "rolls differently from machine to machine; on 32-bit x86 compile with -msse2 "
    "-mfpmath=sse");

// A position, direction or force. A default-constructed vector is not set.
struct Vector3 {
    float x;
    float y;
    float z;

    Vector3() = default;
    constexpr Vector3(float px, float py, float pz) : x(px), y(py), z(pz) {}

    Vector3& set(float px, float py, float pz) { return *this = Vector3(px, py, pz); }

    // Component i: 0 is x, 1 is y, 2 is z.
    float& operator[](int i) { return i == 0 ? x : i == 1 ? y : z; }
    const float& operator[](int i) const { return i == 0 ? x : i == 1 ? y : z; }

    Vector3& operator+=(const Vector3& v) { return set(v.x + x, v.y + y, v.z + z); }
    Vector3& operator-=(const Vector3& v) { return set(x - v.x, y - v.y, z - v.z); }

    float length() const {
        return static_cast<float>(std::sqrt(
            static_cast<double>(x) * x + static_cast<double>(y) * y + static_cast<double>(z) * z));
    }

    // Returns this vector with length 1; (0, 0, 0) when the length is exactly 0, with no tolerance.
    Vector3 unit() const {
        const float l = length();
        if (l == 0.0F) { return {0.0F, 0.0F, 0.0F}; }
        const double k = 1.0 / l;
        return {static_cast<float>(x * k), static_cast<float>(y * k), static_cast<float>(z * k)};
    }
};

inline Vector3 operator+(const Vector3& a, const Vector3& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

inline Vector3 operator-(const Vector3& a, const Vector3& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

inline Vector3 operator*(const Vector3& v, float s) {
    return {s * v.x, s * v.y, s * v.z};
}

inline float dot(const Vector3& a, const Vector3& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

// cross(x axis, y axis) is the z axis.
inline Vector3 cross(const Vector3& a, const Vector3& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// A rotation, row by row: element (row r, column c) is the float at 3r + c. A default-constructed
// matrix is not set.
struct Matrix3 {
    float elements[9];

    Matrix3& identity() { return *this = Matrix3{{1, 0, 0, 0, 1, 0, 0, 0, 1}}; }

    float& at(int r, int c) { return elements[3 * r + c]; }
    const float& at(int r, int c) const { return elements[3 * r + c]; }
};

inline Matrix3 operator*(const Matrix3& a, const Matrix3& b) {
    Matrix3 product;
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 3; ++c) {
            product.at(r, c) =
                a.at(r, 0) * b.at(0, c) + a.at(r, 1) * b.at(1, c) + a.at(r, 2) * b.at(2, c);
        }
    }
    return product;
}

// The matrix times v as a column.
inline Vector3 operator*(const Matrix3& m, const Vector3& v) {
    return {m.at(0, 0) * v.x + m.at(0, 1) * v.y + m.at(0, 2) * v.z,
            m.at(1, 0) * v.x + m.at(1, 1) * v.y + m.at(1, 2) * v.z,
            m.at(2, 0) * v.x + m.at(2, 1) * v.y + m.at(2, 2) * v.z};
}
