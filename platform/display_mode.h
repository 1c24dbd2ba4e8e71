// The one display mode that the game asks for. Every provider of platform/windows_api.h offers it,
// and gives the game a drawing surface of that size, colour and depth.
#pragma once

inline constexpr int screenWidth = 640;     // pixels
inline constexpr int screenHeight = 480;    // pixels
inline constexpr int screenColourBits = 16; // per pixel: 5 red, 6 green, 5 blue
inline constexpr int screenDepthBits = 16;  // per pixel of the depth buffer
