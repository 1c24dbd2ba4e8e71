// The end of the game's one window. CreateWindowExA in window.cpp opens it.
#pragma once

// Closes the window, if there is one, without a message to the game. Releases its OpenGL context
// first.
void closeWindow();
