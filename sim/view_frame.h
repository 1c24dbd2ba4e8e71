// The one view of the world: where the eye is and how the world is rotated in front of it.
//
// The camera writes it once a tick; everything drawn in 3-D reads it. A world point p has the view
// coordinates v = getRotation() * (p - getPosition()): x to the right of the screen, y up the
// screen, z along the line of sight.
#pragma once

#include "sim/vector.h"

struct ViewFrame {
    float angles[3];  // the constructor's angles about x, y, z in radians: 0
    Vector3 position; // the eye, world
    Matrix3 rotation; // rotX * rotY * rotZ
    Matrix3 rotX;
    Matrix3 rotY;
    Matrix3 rotZ;

    // The eye at the origin, no rotation: view coordinates are world coordinates.
    ViewFrame();

    // Each builds one axis matrix from an angle in radians. Applied to a column vector it rotates
    // the vector by minus the angle about that axis. `rotation` does not change.
    void setRotationX(float angle);
    void setRotationY(float angle);
    void setRotationZ(float angle);

    // Puts the eye at a world position and sets all matrices from the angles (radians). `rotation`
    // rotates a vector about z first, then y, then x.
    void set(const Vector3& eye, float angleX, float angleY, float angleZ);

    Matrix3 getRotation() const { return rotation; }
    Vector3 getPosition() const { return position; }
};

extern ViewFrame viewFrame;
