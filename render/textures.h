// The two textures of the game, ground and font, under fixed OpenGL names.
#pragma once

#include "data/font.h"
#include "sim/level.h"

inline constexpr unsigned groundTexture = 1;
inline constexpr unsigned fontTexture = 10;

// Each uploads its texture with all mip levels and leaves it bound to GL_TEXTURE_2D. A resident
// ground texture is deleted first.
void uploadGroundTexture(const Level& ground);
void uploadFontTexture(const Font& from);
