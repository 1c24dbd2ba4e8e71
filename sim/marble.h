// The marble: the only moving body of the game.
#pragma once

#include "sim/vector.h"

struct Level;
struct ViewFrame;

// There is one marble. It has no constructor: as a global it starts at zero, and each level start
// places it and sets its colour.
struct Marble {
    Vector3 velocity; // in units of unitsPerVelocity world units a second
    Vector3 position; // the point of contact, world: z is the ground's height
    float power;      // scales the steering force and sets the top speed
    float colour[3];  // red, green, blue, each 0..255

    void setVelocity(const Vector3& v) { velocity = v; }
    void setPosition(const Vector3& p) { position = p; }
    Vector3 getPosition() const { return position; }
    void setPower(float p) { power = p; }
    float getPower() const { return power; }
    void setColour(float red, float green, float blue) {
        colour[0] = red;
        colour[1] = green;
        colour[2] = blue;
    }

    // Rolls over the ground for dt seconds under the steering force, gravity along the slope, and
    // drag; the speed is limited by the power. With a dt of 0 it neither moves nor accelerates.
    void step(const Level& ground, const Vector3& force, float dt);

    // Draws it as a shaded disc that faces the viewer, faintly where a hill hides it, and with
    // `normalMode` the arrows of the ground's normal and slope (render/marble.cpp). Called right
    // after Level::drawGround, whose fog and depth it uses.
    void draw(const ViewFrame& view, const Level& ground, bool normalMode) const;
};

inline constexpr float normalPower = 40.0F;
inline constexpr float turboPower = 65.0F;
inline constexpr double topSpeedPerPower = 0.1; // limit of the velocity's length
inline constexpr float drag = -9.5F;            // force per velocity
inline constexpr double gravity = 11.76;        // acceleration
inline constexpr float marbleMass = 10.0F;

// World units that the position advances in a second for each unit of velocity.
inline constexpr double unitsPerVelocity = 210.0;

// World units from the ground to the marble's centre, along the normal: its radius.
inline constexpr float marbleRadius = 20.0F;

// Returns the world point that is the marble's centre when it touches the ground at `contact`,
// computed in double precision.
Vector3 marbleCentre(const Level& ground, const Vector3& contact);

extern Marble marble;
