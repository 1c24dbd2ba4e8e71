// Notices that the game draws one picture again and again, as on title and menu and while it is
// paused. Where the processor does the work of OpenGL, showing that picture again and again would
// fill a core. Call every operation with the game's context current and its surface bound.
#pragma once

// Decides, for a new context, whether pictures are compared: only where no graphics card draws.
void watchPictures();

// Returns true when the surface holds the same picture as at the last calls, for about half a
// second, so that it need not be shown again. Always false where pictures are not compared.
bool isPictureStill();

// Makes isPictureStill() start counting again, since the window has lost what it showed. Needs no
// context.
void forgetPicture();
