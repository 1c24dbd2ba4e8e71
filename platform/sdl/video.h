// The start of SDL's video subsystem, which windows, keys and OpenGL need.
#pragma once

// Starts the video subsystem at the first call; later calls return the first result. Returns false
// and sets a fatal error (errors.h) when there is no display.
bool startVideo();

// Returns true when a player can see the display and press keys on it, false for SDL's drivers that
// keep windows in memory only ("offscreen" and "dummy"). The video subsystem must be running.
bool isDisplayVisible();
