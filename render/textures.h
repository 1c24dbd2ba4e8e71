// The two textures of the game, ground and font, under fixed OpenGL names.
#pragma once

#include "data/font.h"
#include "sim/level.h"

inline constexpr unsigned groundTexture = 1;
inline constexpr unsigned fontTexture = 10;

// Each makes its texture from the pixels of all mip levels and leaves it current as GL_TEXTURE_2D.
// A ground texture that is there already is deleted first.
void uploadGroundTexture(const Level& ground);
void uploadFontTexture(const Font& from);
