// The end of the process.
#pragma once

// Releases everything that SDL holds for the game, in the order that it needs: music, effects, the
// OpenGL context, the window, SDL itself. The window closes without WM_DESTROY. Call it once, after
// WinMain has returned.
void shutDown();
