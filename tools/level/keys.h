// The five keys that drive the marble, as a set of bits, and their names in files of keys.
#pragma once

#include <string>

// A set of the bits below.
using Keys = unsigned;

inline constexpr Keys noKey = 0;
inline constexpr Keys leftKey = 1;
inline constexpr Keys rightKey = 2;
inline constexpr Keys upKey = 4;
inline constexpr Keys downKey = 8;
inline constexpr Keys turboKey = 16;

// Returns the names in a fixed order, such as "up left shift", or "-" for no key.
std::string keysText(Keys keys);

// Adds the key of that name ("-" adds none). Returns false when there is no such key.
bool addKey(const std::string& name, Keys& keys);
