#include "sim/marble.h"

#include "sim/level.h"

namespace {

constexpr Vector3 weight(0.0F, 0.0F, static_cast<float>(gravity) * marbleMass);
constexpr float accelerationPerForce = 1.0F / marbleMass;

Vector3 limitSpeed(const Vector3& velocity, double topSpeed) {
    if (velocity.length() <= topSpeed) { return velocity; }
    return velocity.unit() * static_cast<float>(topSpeed);
}

} // namespace

void Marble::step(const Level& ground, const Vector3& force, float dt) {
    const Vector3 downhill = ground.downhillAt(position.x, position.y);
    const Vector3 alongSlope = downhill * dot(weight, downhill);
    const Vector3 dragForce = velocity * drag;
    const Vector3 acceleration = (force + alongSlope + dragForce) * accelerationPerForce;
    velocity += acceleration * dt;
    velocity = limitSpeed(velocity, power * topSpeedPerPower);

    const double reach = dt * unitsPerVelocity;
    const Vector3 old = position;
    position += velocity * static_cast<float>(reach);
    position.z = ground.heightAt(position.x, position.y);
    if (reach == 0.0) { return; } // two ticks at the same count of the clock
    // Does not move the marble, which stays on the ground, but counts for drag and top speed.
    velocity.z = static_cast<float>((old.z - position.z) / reach);
}

Vector3 marbleCentre(const Level& ground, const Vector3& contact) {
    constexpr double radius = marbleRadius;
    const Vector3 up = ground.normalAt(contact.x, contact.y);
    return {static_cast<float>(contact.x + up.x * radius),
            static_cast<float>(contact.y + up.y * radius),
            static_cast<float>(contact.z + up.z * radius)};
}
