// The OpenGL context of the window and the surface in it that the game draws on.
#pragma once

// Tells SDL, before a window opens, what its own pixels need: the game's depth buffer is not among
// them, since the game never draws on the window itself.
void prepareSurfaceAttributes();

// Releases surface and context where there are any.
void stopSurface();
