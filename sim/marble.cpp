#include "sim/marble.h"

#include "sim/level.h"

namespace {

constexpr Vector3 gravity(0.0F, 0.0F, 11.76F * 10.0F);
constexpr float accelerationPerForce = 0.1F;

Vector3 limitSpeed(const Vector3& velocity, double topSpeed) {
    // Written so that a step of no time, which leaves z undefined, is mended by the next one.
    if (!(velocity.length() > topSpeed)) { return velocity; }
    return velocity.unit() * static_cast<float>(topSpeed);
}

} // namespace

void Marble::step(const Level& ground, const Vector3& force, float dt) {
    const Vector3 downhill = ground.downhillAt(position.x, position.y);
    const Vector3 alongSlope = downhill * dot(gravity, downhill);
    const Vector3 dragForce = velocity * drag;
    const Vector3 acceleration = (force + alongSlope + dragForce) * accelerationPerForce;
    velocity += acceleration * dt;
    velocity = limitSpeed(velocity, power * topSpeedPerPower);

    const double reach = dt * unitsPerVelocity;
    const Vector3 old = position;
    position += velocity * static_cast<float>(reach);
    position.z = ground.heightAt(position.x, position.y);
    // Never moves the marble, which stays on the ground; it counts in the next drag and top speed.
    velocity.z = static_cast<float>((old.z - position.z) / reach);
}

Vector3 marbleCentre(const Level& ground, const Vector3& contact) {
    constexpr double radius = marbleRadius;
    const Vector3 up = ground.normalAt(contact.x, contact.y);
    return {static_cast<float>(contact.x + up.x * radius),
            static_cast<float>(contact.y + up.y * radius),
            static_cast<float>(contact.z + up.z * radius)};
}
