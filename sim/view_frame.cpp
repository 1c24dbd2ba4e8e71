#include "sim/view_frame.h"

#include <cmath>

ViewFrame::ViewFrame() : angles{0.0F, 0.0F, 0.0F}, position(0.0F, 0.0F, 0.0F) {
    set(position, angles[0], angles[1], angles[2]);
}

void ViewFrame::setRotationX(float angle) {
    const float s = std::sin(angle);
    const float c = std::cos(angle);
    rotX = Matrix3{{1, 0, 0, 0, c, s, 0, -s, c}};
}

void ViewFrame::setRotationY(float angle) {
    const float s = std::sin(angle);
    const float c = std::cos(angle);
    rotY = Matrix3{{c, 0, -s, 0, 1, 0, s, 0, c}};
}

void ViewFrame::setRotationZ(float angle) {
    const float s = std::sin(angle);
    const float c = std::cos(angle);
    rotZ = Matrix3{{c, s, 0, -s, c, 0, 0, 0, 1}};
}

void ViewFrame::set(const Vector3& eye, float angleX, float angleY, float angleZ) {
    position = eye;
    setRotationX(angleX);
    setRotationY(angleY);
    setRotationZ(angleZ);
    rotation = rotX * rotY * rotZ;
}
