// One complete frame for the screen that the game is on.
//
// OpenGL's matrices stay the identity for the whole run: 2-D shapes are given in NDC, text in
// pixels of the 640 x 480 screen, and the world is projected in software.
#pragma once

// Composes and presents a frame: once a tick, also while paused, and when the window must be
// painted. On the screens without a level it also sees to it that none runs; on the name entry it
// takes the typed key.
void drawFrame();
