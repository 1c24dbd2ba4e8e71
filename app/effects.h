// The sound effects: which there are, and the one way to play them.
//
// A new effect cuts off the one still playing; a file that cannot be played is passed over.
#pragma once

inline constexpr const char* menuSound = "sounds/menu.wav";     // a menu key, a letter of a name
inline constexpr const char* goSound = "sounds/go.wav";         // the count-down is over
inline constexpr const char* timeUpSound = "sounds/timeup.wav"; // the level's time has run out
inline constexpr const char* goalSound = "sounds/allright.wav"; // the marble is over the line

// Starts the WAVE file and returns at once.
void playEffect(const char* fileName);
