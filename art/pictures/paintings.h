// The game's painted pictures: scenes, rendered in linear light.
#pragma once

#include "art/pictures/image.h"

// The title screen: the game's name over a valley of the first course's ground, a marble in front.
// The middle is bright, for the blue text of the menu, which the game darkens by half.
Image titlePainting();

// The background of the best times: the same ground, out of mist. The sky is deep where the table
// stands, and the foot is bright for the blue line there.
Image backPainting();

// The game's icon: a marble at the rim of a well.
Image iconPainting(int size);
