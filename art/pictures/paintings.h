// The game's painted pictures, as light: composed of scenes, still to be made into files.
#pragma once

#include "art/pictures/canvas.h"

// The title screen, 640 x 480: the game's name over its land at dusk, a marble in front. The middle
// is left calm and dark for the menu.
Canvas titlePainting();

// The background of the best times, 640 x 480: the same land at night, calm all over.
Canvas backPainting();

// The game's icon: a marble at the rim of a well.
Canvas iconPainting(int size);
