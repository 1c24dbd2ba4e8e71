// The window's OpenGL context and the surface that the game draws on. surface.cpp also holds the
// functions of windows_api.h for device contexts, pixel formats, contexts and SwapBuffers.
#pragma once

// Sets the attributes that SDL needs to know before it opens a window for OpenGL. The window itself
// gets no depth buffer: the game draws on a framebuffer object that has its own.
void prepareSurfaceAttributes();

// Releases the surface and the context, if there are any.
void stopSurface();
