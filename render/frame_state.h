// The state of OpenGL that outlasts a frame.
//
// OpenGL's matrices stay the identity for the whole run: 2-D shapes are given in NDC, text in
// pixels of the screen, and the world is projected in software.
#pragma once

// Sets what every frame relies on; once, when the context is new.
void setStartState();

// Switches OpenGL's fog.
void switchFog(bool on);

// Clears colour and depth for the frame that follows. In fog the sky has its colour, otherwise it
// is black.
void clearFrame(bool fogOn);
