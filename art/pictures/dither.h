// The last step of a full-screen picture: the display has 5 bits of red, 6 of green and 5 of blue.
#pragma once

#include "art/pictures/canvas.h"

// The picture in display bytes that 5-6-5 bits hold exactly, so that the display rounds nothing
// and shows no bands: what a pixel cannot hold is handed on to its neighbours (Floyd and
// Steinberg's error diffusion, rows taken to and fro).
Picture ditheredTo565(const Canvas& canvas);
