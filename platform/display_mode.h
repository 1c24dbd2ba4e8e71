// The display mode that the game asks for. platform/sdl offers only this one and gives the game a
// drawing surface of this size, colour and depth.
#pragma once

inline constexpr int screenWidth = 640;     // pixels
inline constexpr int screenHeight = 480;    // pixels
inline constexpr int screenColourBits = 16; // per pixel: 5 red, 6 green, 5 blue
inline constexpr int screenDepthBits = 16;  // per pixel of the depth buffer
