// How a tone's loudness runs: the two shapes that everything here is made of.
#pragma once

// Falls by half every halfLife seconds, after a rise of attack seconds that takes the edge off.
// Time in seconds since the tone's start; 0.0 before it.
struct Decay {
    double attack;
    double halfLife;

    double at(double time) const;
};

// Rises, stays at 1.0, and falls to 0.0 at its length: a blown or bowed tone. All in seconds; the
// rise and the fall are half cosines, so neither has a corner.
struct Swell {
    double rise;
    double fall;
    double length;

    double at(double time) const;
};
