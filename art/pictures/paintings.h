// The game's painted pictures: scenes, rendered in linear light.
#pragma once

#include "art/pictures/image.h"

// The title screen: the game's name over the ground at dusk, a marble in front. The middle has
// little detail and is dark, for the menu.
Image titlePainting();

// The background of the best times: the same ground at night, with little detail.
Image backPainting();

// The game's icon: a marble at the rim of a well.
Image iconPainting(int size);
