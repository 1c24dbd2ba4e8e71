// The pace of the game: one frame of the game for each frame of the display.
#pragma once

// SwapBuffers has shown a frame: the game's next look for messages waits for the display's next
// frame.
void noteFrameShown();
