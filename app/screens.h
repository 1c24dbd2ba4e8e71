// The 2-D pieces of a frame, each drawn over what is there. Called by drawFrame only.
#pragma once

// The full-screen pictures. Each is read from its file when it is first needed. One that cannot be
// read, or has not 640 x 480 pixels, is reported once and left out; it is tried again when its
// screen is entered anew, which `entered` tells.
void drawTitlePicture(bool entered);
void drawBackPicture(bool entered);

// Darkens everything drawn so far to half.
void drawShade();

// The seconds of turbo left, as a bar that shrinks to the right and turns from green to red.
void drawTurboGauge();

// The level clock and, when the option is on, frames and ground triangles per second.
void drawStatsAndClock();

// "Level n", which starts large at each new level and shrinks away.
void drawBanner();

// The page of the menu that the selected item is on.
void drawMenu();
