// The OpenGL state that lasts longer than a frame.
//
// OpenGL's matrices stay the identity for the whole run: 2-D shapes are given in NDC, text in
// pixels of the screen, and the world is projected in software.
#pragma once

// Sets the state that every frame needs. Called once, with a new context.
void setStartState();

// Switches OpenGL's fog on or off.
void switchFog(bool on);

// Clears colour and depth for the next frame. The sky has the colour of the fog when that is on,
// otherwise it is black.
void clearFrame(bool fogOn);
